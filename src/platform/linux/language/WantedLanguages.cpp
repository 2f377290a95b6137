#include "platform/linux/language/WantedLanguages.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace LinuxDesktop {

namespace {

std::string_view variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::string_view localeOfMessages()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const std::string_view locale = variable(name); !locale.empty())
            return locale;
    }
    return "C";
}

} // namespace

std::vector<std::string> wantedLanguages()
{
    const std::string_view locale = localeOfMessages();
    // Who has no locale is not asked for a language.
    if (locale == "C" || locale == "POSIX")
        return {};
    std::string_view list = variable("LANGUAGE");
    if (list.empty())
        list = locale;
    std::vector<std::string> languages;
    while (!list.empty()) {
        const std::string_view entry = list.substr(0, list.find(':'));
        list.remove_prefix(std::min(entry.size() + 1, list.size()));
        // Without its encoding and its variant.
        const std::string_view name = entry.substr(0, entry.find_first_of(".@"));
        const std::string_view language = name.substr(0, name.find('_'));
        if (language == "en" || language == "C" || language == "POSIX")
            break;
        // It becomes part of a file's name.
        if (language.empty() || name.find('/') != std::string_view::npos)
            continue;
        languages.emplace_back(name);
        if (language != name)
            languages.emplace_back(language);
    }
    return languages;
}

} // namespace LinuxDesktop
