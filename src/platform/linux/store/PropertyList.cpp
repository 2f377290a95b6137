#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace LinuxDesktop::PropertyList {

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
