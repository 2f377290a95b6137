#include "platform/Value.h"

#include <array>

namespace NS {

namespace {

template<class T, class Variant>
std::optional<T> copyOf(const Variant& value)
{
    if (const T* held = std::get_if<T>(&value))
        return *held;
    return std::nullopt;
}

} // namespace

Value::Kind Value::kind() const
{
    // In the order of the variant's alternatives; both integer forms are one kind.
    static constexpr std::array kinds{Kind::Boolean, Kind::Integer, Kind::Integer, Kind::Real,      Kind::String,
                                      Kind::Date,    Kind::Data,    Kind::Array,   Kind::Dictionary};
    static_assert(kinds.size() == std::variant_size_v<decltype(m_value)>);
    return kinds.at(m_value.index());
}

std::optional<bool> Value::boolean() const
{
    return copyOf<bool>(m_value);
}

std::optional<std::int64_t> Value::integer() const
{
    return copyOf<std::int64_t>(m_value);
}

std::optional<std::uint64_t> Value::largeInteger() const
{
    return copyOf<std::uint64_t>(m_value);
}

std::optional<double> Value::real() const
{
    return copyOf<double>(m_value);
}

std::optional<NS::Date> Value::date() const
{
    return copyOf<NS::Date>(m_value);
}

} // namespace NS
