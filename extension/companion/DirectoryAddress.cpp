#include "extension/companion/DirectoryAddress.h"

#include "platform/URL.h"

namespace MenuExtension {

namespace {

/// The text after `prefix`; all of it where it begins otherwise.
std::string_view without(std::string_view prefix, std::string_view text)
{
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

} // namespace

bool isFileAddress(std::string_view text)
{
    constexpr std::string_view scheme = "file:";
    if (!text.starts_with(scheme) || !NS::URL::URLWithString(text))
        return false;
    std::string_view path = text.substr(scheme.size());
    // Two slashes begin the machine's name, which is left out or says "this one".
    if (path.starts_with("//"))
        path = without("localhost", path.substr(2));
    return path.starts_with('/') && !path.starts_with("//") && path.find_first_of("?#") == std::string_view::npos &&
           path.find("%00") == std::string_view::npos;
}

std::vector<std::string> addressesOf(const std::vector<Folder>& folders)
{
    std::vector<std::string> addresses;
    addresses.reserve(folders.size());
    for (const Folder& folder : folders)
        addresses.push_back(NS::URL::fileURLWithPath(folder.path).absoluteString());
    return addresses;
}

} // namespace MenuExtension
