#include "extension/companion/RunCall.h"

#include "extension/companion/OfferedActions.h"
#include "extension/menu/Menu.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "settings/MenuCatalogue.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace MenuExtension {

namespace {

/// As the programs with windows bound it: a variable of 128 KiB would keep every program from being started.
constexpr std::size_t longestToken = 4096;

constexpr std::array errorNames{"UnknownAction", "SwitchedOff",  "OutOfScope",
                                "DoesNotApply",  "BadArguments", "Failed"};

Refusal badArguments(std::string words)
{
    return {Refusal::Kind::BadArguments, std::move(words)};
}

const CatalogueRow* rowOf(std::string_view action)
{
    const auto row = std::ranges::find(menuCatalogue, action, &CatalogueRow::identifier);
    return row == menuCatalogue.end() ? nullptr : &*row;
}

/// The bytes of a string of bytes, with no zero at the end; nothing where the message has something else there.
std::optional<std::string> readBytes(sd_bus_message& message)
{
    const void* bytes = nullptr;
    std::size_t count = 0;
    if (sd_bus_message_read_array(&message, 'y', &bytes, &count) <= 0)
        return std::nullopt;
    std::string text(static_cast<const char*>(bytes), count);
    if (text.ends_with('\0'))
        text.pop_back();
    return text;
}

bool readPaths(sd_bus_message& message, std::vector<std::string>& paths)
{
    if (sd_bus_message_enter_container(&message, SD_BUS_TYPE_ARRAY, "ay") <= 0)
        return false;
    std::size_t total = 0;
    while (sd_bus_message_at_end(&message, 0) == 0) {
        const auto bytes = readBytes(message);
        auto path = bytes ? plainPath(*bytes) : std::nullopt;
        if (!path || (total += path->size() + 1) > longestInput)
            return false;
        paths.push_back(*std::move(path));
    }
    return sd_bus_message_exit_container(&message) >= 0;
}

/// Reads the value of an option that is known by `name`; what is not known is passed over.
bool readOption(sd_bus_message& message, std::string_view name, RunCall& call)
{
    const auto enter = [&](const char* type) {
        return sd_bus_message_enter_container(&message, SD_BUS_TYPE_VARIANT, type) > 0;
    };
    if (name == "background") {
        int background = 0;
        if (!enter("b") || sd_bus_message_read_basic(&message, SD_BUS_TYPE_BOOLEAN, &background) <= 0)
            return false;
        call.request.background = background != 0;
    } else if (name == "activation-token") {
        const char* token = nullptr;
        if (!enter("s") || sd_bus_message_read_basic(&message, SD_BUS_TYPE_STRING, &token) <= 0)
            return false;
        if (std::string_view(token).size() <= longestToken)
            call.activationToken = token;
    } else if (name == "target") {
        const auto bytes = enter("ay") ? readBytes(message) : std::nullopt;
        auto target = bytes ? plainPath(*bytes) : std::nullopt;
        if (!target)
            return false;
        call.request.target = *std::move(target);
    } else {
        return sd_bus_message_skip(&message, "v") >= 0;
    }
    return sd_bus_message_exit_container(&message) >= 0;
}

bool readOptions(sd_bus_message& message, RunCall& call)
{
    if (sd_bus_message_enter_container(&message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0)
        return false;
    while (sd_bus_message_enter_container(&message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* name = nullptr;
        if (sd_bus_message_read_basic(&message, SD_BUS_TYPE_STRING, &name) <= 0 || !readOption(message, name, call) ||
            sd_bus_message_exit_container(&message) < 0)
            return false;
    }
    return sd_bus_message_exit_container(&message) >= 0;
}

} // namespace

std::string errorName(Refusal::Kind kind)
{
    return std::string(BusInterface::FinderSyncExtension::interface) + ".Error." +
           errorNames.at(static_cast<std::size_t>(kind));
}

std::optional<Refusal> parse(sd_bus_message& message, RunCall& call)
{
    call.isAnswerAwaited = sd_bus_message_get_expect_reply(&message) != 0;
    const char* action = nullptr;
    if (sd_bus_message_read_basic(&message, SD_BUS_TYPE_STRING, &action) <= 0)
        return badArguments("Orvik Menu was asked for something in a way that it does not understand.");
    call.action = action;
    if (!readPaths(message, call.request.paths))
        return badArguments(R"(A path must be absolute and plain, without the names "." and "..".)");
    if (!readOptions(message, call))
        return badArguments("An option has a value of the wrong kind.");
    if (!isWhole(call.request))
        return badArguments(call.request.background ? "A background is that of one folder." : "There is no path.");
    if (const char* caller = sd_bus_message_get_sender(&message))
        call.request.caller = caller;
    return std::nullopt;
}

std::optional<Refusal> refusalOf(std::string_view action, const std::vector<MenuItem>& items)
{
    const CatalogueRow* row = rowOf(action);
    if (!row)
        return Refusal{Refusal::Kind::UnknownAction,
                       NS::LocalizedString("Companion", "Orvik Menu has no action of that name.")};
    if (action == actionOfFileManager)
        return Refusal{Refusal::Kind::DoesNotApply,
                       NS::LocalizedString("Companion", "Only the file manager itself can do this.")};
    const auto isOn = [row](const MenuItem& item) { return item.state && item.title == row->title; };
    if (std::ranges::none_of(items, isOn))
        return Refusal{
            Refusal::Kind::SwitchedOff,
            NS::LocalizedString("Companion", "This action is switched off in the settings of Orvik Menu.")};
    return std::nullopt;
}

std::optional<Refusal> refusalOf(const ActionRequest& request, const Scope& scope)
{
    Selection selection{.items = {}, .isBackground = request.background};
    selection.items.reserve(request.paths.size());
    for (const std::string& path : request.paths)
        selection.items.push_back({.path = path});
    if (!isInScope(selection, scope))
        return Refusal{Refusal::Kind::OutOfScope, Words::outOfScope(request.paths)};
    return std::nullopt;
}

std::string titleOf(std::string_view action)
{
    const CatalogueRow* row = rowOf(action);
    return row ? NS::LocalizedString("MenuCatalogue", row->title) : submenuTitle;
}

} // namespace MenuExtension
