#pragma once

#include <string>
#include <string_view>

namespace NS {

/// The address of a file, by its path. The path is bytes, as the file system has them; it need not be UTF-8.
class URL {
public:
    [[nodiscard]] static URL fileURLWithPath(std::string_view path) { return URL(std::string(path)); }

    [[nodiscard]] const std::string& path() const { return m_path; }

    friend bool operator==(const URL&, const URL&) = default;

private:
    explicit URL(std::string path) : m_path(std::move(path)) {}

    std::string m_path;
};

} // namespace NS
