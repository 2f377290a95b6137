#pragma once

#include "platform/Date.h"

#include <concepts>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace NS {

using Data = std::vector<std::uint8_t>;

/// A property-list value of one of eight kinds. The kinds never blur: a boolean is not an integer and an
/// integer is not a real, and asking for a kind that the value does not have gives nothing. Copies share their
/// arrays and dictionaries, which nothing changes any more, so a long list is copied in no time. Threads may have
/// copies of their own.
class Value {
public:
    enum class Kind { Boolean, Integer, Real, String, Date, Data, Array, Dictionary };

    using Array = std::vector<Value>;
    using Dictionary = std::map<std::string, Value, std::less<>>;

    Value(std::same_as<bool> auto value) : m_value(value) {}
    /// Integers are 64-bit signed. An unsigned value beyond that range is held too, so that a file which has
    /// one survives a rewrite; its kind is Integer and integer() gives nothing.
    template<std::integral T>
    requires(!std::same_as<T, bool>) Value(T value) : m_value(integerOf(value)) {}
    Value(std::floating_point auto value) : m_value(static_cast<double>(value)) {}
    /// UTF-8.
    Value(std::string value) : m_value(std::move(value)) {}
    Value(std::string_view value) : m_value(std::string(value)) {}
    Value(const char* value) : m_value(std::string(value)) {}
    Value(NS::Date value) : m_value(value) {}
    Value(NS::Data value) : m_value(std::move(value)) {}
    Value(Array value) : m_value(Shared<Array>(std::move(value))) {}
    Value(Dictionary value) : m_value(Shared<Dictionary>(std::move(value))) {}

    [[nodiscard]] Kind kind() const;

    [[nodiscard]] std::optional<bool> boolean() const { return scalar<bool>(); }
    [[nodiscard]] std::optional<std::int64_t> integer() const { return scalar<std::int64_t>(); }
    /// The magnitude of an integer too large for integer(); nothing for every other value.
    [[nodiscard]] std::optional<std::uint64_t> largeInteger() const { return scalar<std::uint64_t>(); }
    [[nodiscard]] std::optional<double> real() const { return scalar<double>(); }
    [[nodiscard]] std::optional<NS::Date> date() const { return scalar<NS::Date>(); }
    // The pointers live as long as the value is neither assigned to nor destroyed.
    [[nodiscard]] const std::string* string() const { return std::get_if<std::string>(&m_value); }
    [[nodiscard]] const NS::Data* data() const { return std::get_if<NS::Data>(&m_value); }
    // Of two copies of one value the pointers are the same.
    [[nodiscard]] const Array* array() const { return shared<Array>(); }
    [[nodiscard]] const Dictionary* dictionary() const { return shared<Dictionary>(); }

    friend bool operator==(const Value&, const Value&) = default;

private:
    template<class Container>
    class Shared {
    public:
        explicit Shared(Container container) : m_container(std::make_shared<const Container>(std::move(container))) {}
        // Copied where it could be moved, so that there always is a container.
        Shared(const Shared&) = default;
        Shared& operator=(const Shared&) = default;
        ~Shared() = default;

        [[nodiscard]] const Container* get() const { return m_container.get(); }
        friend bool operator==(const Shared& one, const Shared& other) { return *one.get() == *other.get(); }

    private:
        std::shared_ptr<const Container> m_container;
    };

    using Held = std::variant<bool, std::int64_t, std::uint64_t, double, std::string, NS::Date, NS::Data,
                              Shared<Array>, Shared<Dictionary>>;

    template<class Scalar>
    [[nodiscard]] std::optional<Scalar> scalar() const
    {
        const auto* held = std::get_if<Scalar>(&m_value);
        return held ? std::optional(*held) : std::nullopt;
    }

    template<class Container>
    [[nodiscard]] const Container* shared() const
    {
        const auto* held = std::get_if<Shared<Container>>(&m_value);
        return held ? held->get() : nullptr;
    }

    static Held integerOf(std::integral auto value)
    {
        if (std::in_range<std::int64_t>(value))
            return static_cast<std::int64_t>(value);
        return static_cast<std::uint64_t>(value);
    }

    Held m_value;
};

} // namespace NS
