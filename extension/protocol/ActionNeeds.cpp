#include "extension/protocol/ActionNeeds.h"

#include "platform/linux/system/Command.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace MenuExtension {

std::vector<ActionNeed> needsFrom(std::string_view text)
{
    std::vector<ActionNeed> needs;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string kind;
        ActionNeed need;
        if (!(words >> kind >> need.name >> need.package) || (kind != "program" && kind != "library"))
            continue;
        need.kind = kind == "program" ? ActionNeed::Kind::Program : ActionNeed::Kind::Library;
        needs.push_back(std::move(need));
    }
    return needs;
}

bool isMet(const ActionNeed& need)
{
    if (need.kind == ActionNeed::Kind::Program)
        return LinuxDesktop::Command::find(need.name).has_value();
    return ::access(need.name.c_str(), R_OK) == 0;
}

std::vector<ActionNeed> needsOf(const std::string& programs, std::string_view identifier)
{
    std::ifstream file((programs + '/').append(identifier) + ".needs", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return needsFrom(text.view());
}

std::vector<ActionNeed> missingNeeds(const std::string& programs, std::string_view identifier)
{
    std::vector<ActionNeed> needs = needsOf(programs, identifier);
    std::erase_if(needs, isMet);
    return needs;
}

} // namespace MenuExtension
