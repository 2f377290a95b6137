#pragma once

#include "extension/protocol/Outcome.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Texts for people.
namespace MenuExtension::Words {

/// A file's name or path on one line: with a visible sign in the place of every byte that is no UTF-8, of control
/// characters, and of those that reorder text.
[[nodiscard]] std::string shown(std::string_view name);

/// The name at the end of a path, shown in quotes.
[[nodiscard]] std::string name(std::string_view path);

/// Why an item could not be opened or changed, from errno.
[[nodiscard]] std::string reason(int error);

/// "cannot be read: Permission denied": the end of a sentence that begins with a name, from errno.
[[nodiscard]] std::string cannotBeRead(int error);

/// That not all of the items lie where Orvik Menu works.
[[nodiscard]] std::string outOfScope(const std::vector<std::string>& paths);

/// What could not be done with some of the items while the rest went on.
class Troubles {
public:
    /// A sentence.
    void add(const std::string& sentence);
    /// Done where there were none. Names the first few.
    [[nodiscard]] Outcome outcome() const;

private:
    std::string m_sentences;
    std::size_t m_count = 0;
};

} // namespace MenuExtension::Words
