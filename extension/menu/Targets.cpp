#include "extension/menu/Targets.h"

#include "extension/protocol/ActionRequest.h"
#include "extension/protocol/Words.h"

#include <algorithm>
#include <string_view>

namespace MenuExtension {

namespace {

/// In characters, of a name and of the path that stands behind it.
constexpr std::size_t longestTitle = 48;

bool beginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80;
}

/// The text with something left out of its middle where it is long.
std::string shortened(const std::string& text)
{
    std::vector<std::size_t> characters;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (beginsCharacter(text[index]))
            characters.push_back(index);
    }
    if (characters.size() <= longestTitle)
        return text;
    constexpr std::size_t kept = longestTitle / 2;
    return text.substr(0, characters[kept]) + "…" + text.substr(characters[characters.size() - kept + 1]);
}

std::string_view nameOf(std::string_view path)
{
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

/// The path to the folder, without slashes at its end.
std::string_view above(std::string_view path)
{
    return path.substr(0, path.rfind('/'));
}

/// How many bytes at the end of two different paths are whole components that they share.
std::size_t sharedEnd(std::string_view one, std::string_view other)
{
    const auto differ = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend()).first;
    const auto same = one.substr(static_cast<std::size_t>(one.rend() - differ));
    return same.size() - std::min(same.find('/'), same.size());
}

/// The end of `path`, a path to a folder, that has one component more than it shares with another.
std::string_view endBeyond(std::size_t shared, std::string_view path)
{
    const std::string_view rest = path.substr(0, path.size() - shared);
    const std::size_t slash = rest.rfind('/');
    if (rest.empty())
        return path.empty() ? "/" : path;
    return path.substr(slash + 1);
}

/// The path to a folder, as far as it tells it apart from others of the same name.
std::string_view distinction(const Target& target, std::span<const Target> targets,
                             std::span<const std::string> names)
{
    const std::string_view path = above(target.path);
    const std::string& name = names[static_cast<std::size_t>(&target - targets.data())];
    std::size_t shared = 0;
    bool isAlone = true;
    for (std::size_t index = 0; index < targets.size(); ++index) {
        if (&targets[index] == &target || names[index] != name)
            continue;
        isAlone = false;
        shared = std::max(shared, sharedEnd(path, above(targets[index].path)));
    }
    return isAlone ? std::string_view() : endBeyond(shared, path);
}

} // namespace

std::vector<Target> targetsOf(std::span<const std::string> customFolders)
{
    std::vector<Target> targets;
    std::vector<std::string> names;
    for (const std::string& folder : customFolders.first(std::min(customFolders.size(), mostTargets))) {
        auto path = plainPath(folder);
        if (!path || std::ranges::find(targets, *path, &Target::path) != targets.end())
            continue;
        names.push_back(shortened(Words::shown(nameOf(*path))));
        std::string description = Words::shown(*path);
        targets.push_back({.path = *std::move(path), .title = {}, .description = std::move(description)});
    }
    for (std::size_t index = 0; index < targets.size(); ++index) {
        const std::string_view end = distinction(targets[index], targets, names);
        targets[index].title = names[index];
        if (!end.empty())
            targets[index].title += " (" + shortened(Words::shown(end)) + ')';
    }
    return targets;
}

} // namespace MenuExtension
