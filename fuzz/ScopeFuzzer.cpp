#include "extension/menu/Scope.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace MenuExtension;

using Components = std::vector<std::string_view>;

/// The names of an absolute path, between slashes.
Components componentsOf(std::string_view path)
{
    Components components;
    for (std::size_t slash = path.find('/'); slash != std::string_view::npos;) {
        const std::size_t next = path.find('/', slash + 1);
        if (const std::string_view name = path.substr(slash + 1, next - slash - 1); !name.empty())
            components.push_back(name);
        slash = next;
    }
    return components;
}

bool begins(const Components& whole, const Components& part)
{
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

/// Looks at every folder.
bool isActive(const std::vector<Folder>& folders, const Components& where)
{
    const Folder* innermost = nullptr;
    for (const Folder& folder : folders) {
        if (!folder.path.starts_with('/') || !begins(where, componentsOf(folder.path)))
            continue;
        if (!innermost || componentsOf(folder.path).size() > componentsOf(innermost->path).size())
            innermost = &folder;
    }
    return innermost && innermost->active;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

/// The lines are folders, each after a sign that says whether it is active, and last the path that is asked for. What
/// the scope says is what a search through all folders finds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    std::vector<Folder> folders;
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        // No path has a zero in it.
        if (end > 0 && rest.substr(0, end).find('\0') == std::string_view::npos)
            folders.push_back({std::string(rest.substr(1, end - 1)), rest.front() == '+'});
        rest.remove_prefix(end + 1);
    }
    // As they are, they are published by nobody; they only do no harm.
    if (const auto scope = Scope::fromBytes({reinterpret_cast<const char*>(data), size})) {
        static_cast<void>(scope->containsItem("/a/b"));
        static_cast<void>(scope->containsBackground(rest));
    }
    const Scope scope = Scope::fromBytes(bytesOf(folders)).value();
    if (!rest.starts_with('/')) {
        // Nobody has such paths; they only do no harm.
        static_cast<void>(scope.containsItem(rest));
        static_cast<void>(scope.containsBackground(rest));
        return 0;
    }
    Components components = componentsOf(rest);
    require(scope.containsBackground(rest) == isActive(folders, components));
    if (components.empty()) {
        require(!scope.containsItem(rest));
        return 0;
    }
    components.pop_back();
    require(scope.containsItem(rest) == isActive(folders, components));
    return 0;
}
