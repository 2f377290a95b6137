#include "platform/UserDefaults.h"

namespace NS {

std::optional<Value::Array> UserDefaults::arrayForKey(std::string_view key)
{
    if (const auto value = objectForKey(key); value && value->array())
        return *value->array();
    return std::nullopt;
}

} // namespace NS
