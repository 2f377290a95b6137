#pragma once

#include "extension/actions/photos/Message.h"

#include <functional>
#include <string>

namespace MenuExtension::Photos {

/// Does one job, with the files that came with it. What it returns is the answer; that it returns is what counts,
/// since the process may be ended at any time.
using Job = std::function<std::string(Message& message)>;

/// The exit status of a worker that has used up a job's time of the processor.
inline constexpr int endOfProcessorTime = 75;

/// What main() of a worker's program does: limits what this process may use by its arguments, as Worker gives them,
/// and does the jobs that come over standard input until its other end is closed. Gives the exit status. `prepare`
/// is called before the first job.
[[nodiscard]] int runWorker(int argc, char** argv, const std::function<void()>& prepare, const Job& job);

} // namespace MenuExtension::Photos
