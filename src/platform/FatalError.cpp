#include "platform/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace NS {

void fatalError(std::string_view what)
{
    std::fprintf(stderr, "orvik-menu: fatal error: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

} // namespace NS
