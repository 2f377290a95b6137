#pragma once

#include "platform/Value.h"

#include <iosfwd>

namespace NS {

/// How a failed comparison of stored values prints them.
void PrintTo(const Value& value, std::ostream* stream);

} // namespace NS
