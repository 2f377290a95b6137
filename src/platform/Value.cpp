#include "platform/Value.h"

#include <array>

namespace NS {

Value::Kind Value::kind() const
{
    // In the order of the variant's alternatives; both integer forms are one kind.
    static constexpr std::array kinds{Kind::Boolean, Kind::Integer, Kind::Integer, Kind::Real,      Kind::String,
                                      Kind::Date,    Kind::Data,    Kind::Array,   Kind::Dictionary};
    static_assert(kinds.size() == std::variant_size_v<decltype(m_value)>);
    return kinds.at(m_value.index());
}

} // namespace NS
