#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace NS {

/// The address of a file, by its path, or of something else, by its text.
class URL {
public:
    /// `path` is bytes, as the file system has them; it need not be UTF-8.
    [[nodiscard]] static URL fileURLWithPath(std::string_view path);
    /// An address in the form of RFC 3986; nothing when the text is not one. It is not looked at further.
    [[nodiscard]] static std::optional<URL> URLWithString(std::string_view text);

    /// The file's path without a slash at its end; empty for another address.
    [[nodiscard]] const std::string& path() const;
    /// The name of the file in its folder; "/" for the root.
    [[nodiscard]] std::string lastPathComponent() const;
    /// The address in ASCII; a file's with its bytes percent-encoded.
    [[nodiscard]] std::string absoluteString() const;
    [[nodiscard]] bool isFileURL() const { return m_kind == Kind::File; }

    friend bool operator==(const URL&, const URL&) = default;
    /// Some order, for sets.
    // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm.
    friend auto operator<=>(const URL&, const URL&) = default;

private:
    enum class Kind { File, Other };

    URL(Kind kind, std::string text) : m_kind(kind), m_text(std::move(text)) {}

    Kind m_kind;
    std::string m_text;
};

} // namespace NS
