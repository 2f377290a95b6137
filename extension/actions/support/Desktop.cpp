#include "extension/actions/support/Desktop.h"

#include <algorithm>
#include <cstdlib>
#include <strings.h>

namespace MenuExtension {

bool isDesktop(std::string_view name)
{
    const char* variable = std::getenv("XDG_CURRENT_DESKTOP");
    std::string_view rest = variable ? variable : "";
    while (!rest.empty()) {
        const std::string_view one = rest.substr(0, rest.find(':'));
        if (one.size() == name.size() && ::strncasecmp(one.data(), name.data(), name.size()) == 0)
            return true;
        rest.remove_prefix(std::min(one.size() + 1, rest.size()));
    }
    return false;
}

} // namespace MenuExtension
