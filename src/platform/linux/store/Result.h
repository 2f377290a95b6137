#pragma once

#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace LinuxDesktop {

/// What went wrong, in words for the person at the keyboard.
struct Failure {
    std::string what;
};

/// A value, or why there is none.
template<class T>
class [[nodiscard]] Result {
public:
    template<class Initial>
    requires(std::convertible_to<Initial, T> && !std::same_as<std::remove_cvref_t<Initial>, Result>)
        Result(Initial&& value)
        : m_outcome(std::in_place_type<T>, std::forward<Initial>(value))
    {}
    Result(Failure failure) : m_outcome(std::move(failure)) {}

    [[nodiscard]] explicit operator bool() const { return std::holds_alternative<T>(m_outcome); }
    [[nodiscard]] T& operator*() { return std::get<T>(m_outcome); }
    [[nodiscard]] const T& operator*() const { return std::get<T>(m_outcome); }
    [[nodiscard]] T* operator->() { return &std::get<T>(m_outcome); }
    [[nodiscard]] const T* operator->() const { return &std::get<T>(m_outcome); }
    /// Only where there is no value.
    [[nodiscard]] const std::string& error() const { return std::get<Failure>(m_outcome).what; }

private:
    std::variant<T, Failure> m_outcome;
};

} // namespace LinuxDesktop
