#pragma once

#include "extension/actions/support/Request.h"
#include "extension/protocol/Outcome.h"

#include <cstdint>

namespace MenuExtension {

/// What each action defines: does what was asked. The request is in scope and one that the action applies to, when it
/// was looked at; what lies at the paths may be other things by now.
[[nodiscard]] Outcome perform(const Request& request);

using Perform = Outcome (*)(const Request& request);

/// The program of an action that applies to `appliesTo`, bits of AppliesTo: reads the request from the arguments and
/// standard input, checks it by the settings and the items, performs it and answers. Gives the exit status.
[[nodiscard]] int run(std::uint32_t appliesTo, Perform perform, int argc, char** argv);

} // namespace MenuExtension
