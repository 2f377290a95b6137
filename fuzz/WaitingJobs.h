#pragma once

#include <cstddef>

// What waits in the stores' queues. Nothing but these runs it, so that one input always takes the same way. One
// thread.

/// Whose jobs those are that are posted from now on.
void postJobsFor(std::size_t program);
/// Runs what waits of a program, and what that posts.
void runJobsOf(std::size_t program);
