#include "platform/linux/program/LastWords.h"

#include "platform/FatalError.h"
#include "platform/linux/system/Command.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace LinuxDesktop {

namespace {

bool isSet(const char* variable)
{
    const char* value = std::getenv(variable);
    return value && *value;
}

void startProblemWindow(std::string_view what)
{
    // More than a person reads, and less than keeps a program from being started.
    constexpr std::size_t longestWords = 4096;
    if (isSet("ORVIK_MENU_NO_PROBLEM_WINDOW") || !(isSet("DISPLAY") || isSet("WAYLAND_DISPLAY")))
        return;
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    const std::string program = folder / "orvik-menu-problem";
    auto environment = Command::environment();
    environment.push_back(std::string(fatalErrorVariable) + '=' + std::string(what.substr(0, longestWords)));
    environment.push_back(std::string(fatalProcessVariable) + '=' + std::to_string(::getpid()));
    static_cast<void>(Command::start(program, {program}, std::move(environment)));
}

} // namespace

void startProblemWindowWhenFatal()
{
    NS::setLastWords(startProblemWindow);
}

} // namespace LinuxDesktop
