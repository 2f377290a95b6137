#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace LinuxDesktop::PropertyList {

namespace {

bool hasDate(const NS::Value& value)
{
    if (const auto* array = value.array())
        return std::ranges::any_of(*array, hasDate);
    if (const auto* dictionary = value.dictionary())
        return std::ranges::any_of(*dictionary, [](const auto& entry) { return hasDate(entry.second); });
    return value.date().has_value();
}

} // namespace

NS::Value inWholeSeconds(NS::Value value)
{
    // Nearly nothing that is stored has one, and then it is not made again.
    if (!hasDate(value))
        return value;
    switch (value.kind()) {
    case NS::Value::Kind::Date:
        return NS::Date{std::floor(value.date()->timeIntervalSince1970)};
    case NS::Value::Kind::Array: {
        NS::Value::Array array;
        array.reserve(value.array()->size());
        for (const NS::Value& item : *value.array())
            array.push_back(inWholeSeconds(item));
        return array;
    }
    case NS::Value::Kind::Dictionary: {
        NS::Value::Dictionary dictionary;
        for (const auto& [key, item] : *value.dictionary())
            dictionary.emplace_hint(dictionary.end(), key, inWholeSeconds(item));
        return dictionary;
    }
    default:
        return value;
    }
}

bool identical(const NS::Value& one, const NS::Value& other)
{
    if (one.kind() != other.kind())
        return false;
    switch (one.kind()) {
    case NS::Value::Kind::Real: {
        const double left = *one.real();
        const double right = *other.real();
        return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right) ||
               (std::isnan(left) && std::isnan(right));
    }
    case NS::Value::Kind::Array:
        return one.array() == other.array() || std::ranges::equal(*one.array(), *other.array(), identical);
    case NS::Value::Kind::Dictionary:
        return one.dictionary() == other.dictionary() ||
               std::ranges::equal(*one.dictionary(), *other.dictionary(), [](const auto& left, const auto& right) {
                   return left.first == right.first && identical(left.second, right.second);
               });
    default:
        return one == other;
    }
}

} // namespace LinuxDesktop::PropertyList
