#pragma once

#include <string>
#include <string_view>

namespace NS {

/// Names that the panel's first desktop had images of its own for.
inline constexpr std::string_view ImageNameActionTemplate = "NSActionTemplate";
inline constexpr std::string_view ImageNameAddTemplate = "NSAddTemplate";

/// A picture that exists, found by Platform::imageNamed and drawn when it is first shown. Any thread.
class Image {
public:
    /// For platforms: the name that the picture was found under.
    explicit Image(std::string name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::string& name() const { return m_name; }

    friend bool operator==(const Image&, const Image&) = default;

private:
    std::string m_name;
};

} // namespace NS
