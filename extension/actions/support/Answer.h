#pragma once

#include "extension/protocol/Outcome.h"

namespace MenuExtension {

/// Tells who started the program what became of its request, and ends standard output. Only the first answer counts.
/// For a program with a window, which gives it when the window shows and goes on.
void answer(const Outcome& outcome);

} // namespace MenuExtension
