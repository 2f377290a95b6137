#include "support/FatalLine.h"

#include <cerrno>

namespace {

std::string literally(std::string_view text)
{
    std::string pattern;
    for (const char character : text) {
        if (std::string_view(R"(\^$.|?*+()[]{})").find(character) != std::string_view::npos)
            pattern += '\\';
        pattern += character;
    }
    return pattern;
}

std::string line(std::string_view what)
{
    return literally(program_invocation_short_name) + ": fatal error: " + literally(what) + '\n';
}

} // namespace

std::string fatalLine(std::string_view what)
{
    return '^' + line(what) + '$';
}

std::string fatalLineAfter(std::string_view call, std::string_view what)
{
    return literally(call) + '\n' + line(what) + '$';
}

std::string fatalLineAndReport(std::string_view what, std::string_view report)
{
    return '^' + line(what) + "at abort: " + literally(report) + "\n$";
}
