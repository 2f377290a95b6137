#include "extension/filemanagers/Installed.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <glob.h>
#include <system_error>

namespace MenuExtension {

namespace {

namespace fs = std::filesystem;

/// Nothing where it is no file that can be used in that way.
std::optional<std::string> resolved(const fs::path& path, int use)
{
    std::error_code error;
    const fs::path file = fs::canonical(path, error);
    if (error || !fs::is_regular_file(file, error) || ::access(file.c_str(), use) != 0)
        return std::nullopt;
    return file.string();
}

/// Text that stands for itself in a pattern.
std::string literally(const std::string& text)
{
    std::string pattern;
    for (const char character : text) {
        if (std::string_view("\\*?[").find(character) != std::string_view::npos)
            pattern += '\\';
        pattern += character;
    }
    return pattern;
}

std::vector<std::string> matches(const std::string& pattern)
{
    glob_t found{};
    std::vector<std::string> paths;
    if (::glob(pattern.c_str(), 0, nullptr, &found) == 0)
        paths.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
    ::globfree(&found);
    return paths;
}

bool isScript(const std::string& program)
{
    std::array<char, 2> beginning{};
    std::ifstream(program, std::ios::binary).read(beginning.data(), beginning.size());
    return beginning == std::array{'#', '!'};
}

} // namespace

Places usualPlaces()
{
    Places places;
    const char* variable = std::getenv("PATH");
    std::string_view rest = variable ? variable : "";
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find(':'), rest.size());
        // What a relative one means differs from program to program.
        if (rest.starts_with('/'))
            places.programFolders.emplace_back(rest.substr(0, length));
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return places;
}

std::optional<std::string> programOf(const FileManager& manager, const Places& places)
{
    std::vector<std::string> folders = places.programFolders;
    folders.push_back(places.system + "/bin");
    for (const std::string& folder : folders) {
        auto program = resolved(fs::path(folder) / manager.program, X_OK);
        if (program && !isScript(*program))
            return program;
    }
    return std::nullopt;
}

std::optional<std::string> bridgeOf(const FileManager& manager, const std::string& program)
{
    // It looks below what it was installed below itself.
    const std::string prefix = literally(fs::path(program).parent_path().parent_path().string());
    const std::string module = '/' + std::string(manager.moduleFolder) + '/' + std::string(manager.module);
    // Debian has a folder for each kind of processor.
    for (const char* libraries : {"/lib/*", "/lib", "/lib64"}) {
        for (const std::string& path : matches(std::string(prefix).append(libraries).append(module))) {
            if (auto bridge = resolved(path, R_OK))
                return bridge;
        }
    }
    return std::nullopt;
}

} // namespace MenuExtension
