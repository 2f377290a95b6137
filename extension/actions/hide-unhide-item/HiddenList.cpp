#include "HiddenList.h"

#include <algorithm>

namespace MenuExtension::HiddenList {

namespace {

/// The first line of a text, its end included, which the last may lack.
std::string_view lineOf(std::string_view text)
{
    const std::size_t end = text.find('\n');
    return text.substr(0, end == std::string_view::npos ? end : end + 1);
}

std::string_view nameOf(std::string_view line)
{
    return line.ends_with('\n') ? line.substr(0, line.size() - 1) : line;
}

} // namespace

std::set<std::string_view> namesIn(std::string_view text)
{
    std::set<std::string_view> names;
    for (; !text.empty(); text.remove_prefix(lineOf(text).size()))
        names.insert(nameOf(lineOf(text)));
    names.erase("");
    return names;
}

bool canHold(std::string_view name)
{
    return !name.empty() && name.find('\n') == std::string_view::npos;
}

std::string with(std::string_view text, const std::vector<std::string>& names)
{
    std::set<std::string_view> known = namesIn(text);
    std::string result(text);
    for (const std::string& name : names) {
        if (!known.insert(name).second)
            continue;
        if (!result.empty() && !result.ends_with('\n'))
            result += '\n';
        result += name;
        result += '\n';
    }
    return result;
}

std::string without(std::string_view text, const std::vector<std::string>& names)
{
    std::set<std::string_view> unwanted(names.begin(), names.end());
    // No name, but a line that is nobody's to remove.
    unwanted.erase("");
    std::string result;
    for (; !text.empty(); text.remove_prefix(lineOf(text).size())) {
        const std::string_view line = lineOf(text);
        if (!unwanted.contains(nameOf(line)))
            result += line;
    }
    return result;
}

} // namespace MenuExtension::HiddenList
