#include "platform/linux/system/OwnEnvironment.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace LinuxDesktop::OwnEnvironment {

namespace {

std::vector<std::string>& beginnings()
{
    static std::vector<std::string> all;
    return all;
}

} // namespace

void set(const char* name, const char* value)
{
    const char* const there = std::getenv(name);
    if (there && *there)
        return;
    ::setenv(name, value, 1);
    beginnings().push_back(std::string(name) + '=');
}

bool has(std::string_view variable)
{
    return std::ranges::any_of(beginnings(),
                               [&](const std::string& beginning) { return variable.starts_with(beginning); });
}

} // namespace LinuxDesktop::OwnEnvironment
