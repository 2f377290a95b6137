#include "extension/Complaint.h"

#include <cstdio>

namespace MenuExtension {

void complain(const std::string& what)
{
    std::fprintf(stderr, "orvik-menu-extension: %s\n", what.c_str());
}

} // namespace MenuExtension
