#include "support/CallLog.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

std::vector<std::string> CallLog::startingWithAnyOf(const std::vector<std::string_view>& prefixes) const
{
    std::vector<std::string> found;
    std::ranges::copy_if(m_lines, std::back_inserter(found), [&](const std::string& line) {
        return std::ranges::any_of(prefixes, [&](std::string_view prefix) { return line.starts_with(prefix); });
    });
    return found;
}

std::vector<std::string> CallLog::startingWith(std::string_view prefix) const
{
    return startingWithAnyOf({prefix});
}

std::vector<std::string> CallLog::containing(std::string_view text) const
{
    std::vector<std::string> found;
    std::ranges::copy_if(m_lines, std::back_inserter(found),
                         [&](const std::string& line) { return line.find(text) != std::string::npos; });
    return found;
}

void CallLog::add(std::string line)
{
    if (m_echoes)
        std::fprintf(stderr, "%s\n", line.c_str());
    m_lines.push_back(std::move(line));
}
