#pragma once

#include "extension/actions/support/Outcome.h"

namespace MenuExtension {

/// Tells who started the program what became of its request: a digit, then the words, then the end of standard
/// output. Only the first answer counts. For a program with a window, which gives it when the window shows and goes
/// on.
void answer(const Outcome& outcome);

} // namespace MenuExtension
