#pragma once

#include <functional>
#include <string>
#include <vector>

/// Programs that do the same, measured beside each other.
namespace Rivals {

struct Rival {
    std::string name;
    std::vector<std::string> command;
};

/// Runs each in turn, so many times, and prints the medians beside the first's: the time, the time of the processor
/// with that of the programs they start, and the most memory of one process. `prepare` is called before each run.
/// Ends the program where one of them fails.
void compare(const std::string& title, std::vector<Rival> rivals, int rounds, const std::function<void()>& prepare);

} // namespace Rivals
