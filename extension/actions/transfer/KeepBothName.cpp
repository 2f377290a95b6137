#include "extension/actions/transfer/KeepBothName.h"

#include <algorithm>

namespace MenuExtension::Transfers {

namespace {

/// Longer ones are no kind of file, but the end of a sentence.
constexpr std::size_t longestExtension = 16;

/// Where it begins, with its dot; the name's end where there is none.
std::size_t extensionOf(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size() || name.size() - dot > longestExtension ||
        name.find(' ', dot) != std::string_view::npos)
        return name.size();
    constexpr std::string_view packed = ".tar";
    return dot > packed.size() && name.substr(0, dot).ends_with(packed) ? dot - packed.size() : dot;
}

bool isInsideCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80;
}

} // namespace

std::string keepBothName(std::string_view name, bool isFolder, int number, std::size_t longest)
{
    const std::size_t dot = isFolder ? name.size() : extensionOf(name);
    const std::string end = ' ' + std::to_string(number) + std::string(name.substr(dot));
    std::size_t kept = std::min(dot, longest - std::min(longest, end.size()));
    while (kept > 0 && kept < dot && isInsideCharacter(name[kept]))
        --kept;
    return std::string(name.substr(0, kept)) + end;
}

} // namespace MenuExtension::Transfers
