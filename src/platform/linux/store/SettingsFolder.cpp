#include "platform/linux/store/SettingsFolder.h"

#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

constexpr std::string_view suffix = ".plist";

std::optional<std::string> absolutePathIn(const char* variable)
{
    const char* value = std::getenv(variable);
    if (value && *value == '/')
        return value;
    return std::nullopt;
}

std::optional<std::string> homeFolder()
{
    if (auto home = absolutePathIn("HOME"))
        return home;
    passwd record{};
    passwd* found = nullptr;
    std::string strings(16384, '\0');
    if (getpwuid_r(geteuid(), &record, strings.data(), strings.size(), &found) == 0 && found && *found->pw_dir == '/')
        return found->pw_dir;
    return std::nullopt;
}

} // namespace

std::optional<std::string> settingsFolder()
{
    auto configuration = absolutePathIn("XDG_CONFIG_HOME");
    if (!configuration) {
        configuration = homeFolder();
        if (!configuration)
            return std::nullopt;
        *configuration += "/.config";
    }
    return *configuration + "/orvik-menu";
}

bool isDomainName(std::string_view text)
{
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string_view::npos &&
           text.find('\0') == std::string_view::npos;
}

std::string settingsPath(const std::string& folder, std::string_view domain)
{
    return folder + "/" + std::string(domain) + std::string(suffix);
}

Result<std::vector<std::string>> domainsIn(const std::string& folder)
{
    std::vector<std::string> domains;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (const std::filesystem::directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::string name = entry->path().filename().native();
        std::error_code ignored;
        if (name.size() <= suffix.size() || !name.ends_with(suffix) || !entry->is_regular_file(ignored))
            continue;
        name.resize(name.size() - suffix.size());
        domains.push_back(std::move(name));
    }
    if (error && error != std::errc::no_such_file_or_directory)
        return Failure{"could not list " + folder + ": " + error.message()};
    std::ranges::sort(domains);
    return domains;
}

std::optional<Failure> makeFolders(FileOperations& files, const std::string& folder)
{
    struct stat found {};
    if (::stat(folder.c_str(), &found) == 0)
        return std::nullopt;
    const std::string parent = parentFolder(folder);
    if (parent != folder)
        if (auto failure = makeFolders(files, parent))
            return failure;
    constexpr mode_t ownerOnly = 0700;
    if (files.makeFolder(folder, ownerOnly) != 0) {
        // Another process may have been quicker.
        if (errno == EEXIST && ::stat(folder.c_str(), &found) == 0)
            return std::nullopt;
        return systemFailure("could not make the folder", folder);
    }
    if (!syncFolder(files, parent))
        return systemFailure("could not flush", parent);
    return std::nullopt;
}

} // namespace LinuxDesktop
