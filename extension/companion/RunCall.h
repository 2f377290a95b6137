#pragma once

#include "extension/companion/ExtensionSettings.h"
#include "extension/menu/Scope.h"
#include "extension/protocol/ActionRequest.h"

#include <optional>
#include <string>
#include <string_view>
#include <systemd/sd-bus.h>
#include <vector>

/// What is asked of the companion's method Run.
namespace MenuExtension {

struct RunCall {
    std::string action;
    ActionRequest request;
    /// Brings what opens to the front; empty where none was given.
    std::string activationToken;
    /// Whether the caller is there for the answer; otherwise only the desktop can tell a person what went wrong.
    bool isAnswerAwaited = true;
};

/// Why a call is not done, or came to nothing.
struct Refusal {
    enum class Kind { UnknownAction, SwitchedOff, OutOfScope, DoesNotApply, BadArguments, Failed };

    Kind kind;
    /// For a person.
    std::string words;
};

/// The name of the error on the bus.
[[nodiscard]] std::string errorName(Refusal::Kind kind);

/// Reads the call into `call`; gives why that cannot be done. `call` has the action also where its paths are wrong.
[[nodiscard]] std::optional<Refusal> parse(sd_bus_message& message, RunCall& call);

/// Why no selection at all can have the action done by the companion.
[[nodiscard]] std::optional<Refusal> refusalOf(std::string_view action, const std::vector<MenuItem>& items);
/// Why not with what the request is about. Looks at no file: what lies at the paths is for the action to see.
[[nodiscard]] std::optional<Refusal> refusalOf(const ActionRequest& request, const Scope& scope);

/// The title of an action; the product's own where there is none of that identifier.
[[nodiscard]] std::string titleOf(std::string_view action);

} // namespace MenuExtension
