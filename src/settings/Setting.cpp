#include "settings/Setting.h"

#include <cmath>

namespace Decode {

namespace {

template<class T>
std::optional<T> copyOf(const T* held)
{
    return held ? std::optional(*held) : std::nullopt;
}

} // namespace

std::optional<bool> boolean(const NS::Value& stored)
{
    return stored.boolean();
}

std::optional<std::string> text(const NS::Value& stored)
{
    return copyOf(stored.string());
}

std::optional<NS::Date> date(const NS::Value& stored)
{
    return stored.date();
}

std::optional<NS::Data> data(const NS::Value& stored)
{
    return copyOf(stored.data());
}

std::optional<NS::Value::Dictionary> dictionary(const NS::Value& stored)
{
    return copyOf(stored.dictionary());
}

std::optional<std::int64_t> flag(const NS::Value& stored)
{
    if (const auto real = stored.real())
        return std::abs(*real) < 0x1p63 ? static_cast<std::int64_t>(*real) : 0;
    return stored.largeInteger() ? 0 : stored.integer();
}

} // namespace Decode
