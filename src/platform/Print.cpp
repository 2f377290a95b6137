#include "platform/Print.h"

#include <cstdio>

namespace NS {

void print(std::string_view line)
{
    std::printf("%.*s\n", static_cast<int>(line.size()), line.data());
    std::fflush(stdout);
}

} // namespace NS
