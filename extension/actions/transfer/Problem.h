#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace MenuExtension::Transfers {

/// Why an item, or everything, is not where it was to go.
struct Problem {
    enum class Kind {
        /// The target is no folder, or nothing can be made in it: the error says why.
        TargetUnusable,
        /// The target has not as much room as is needed.
        Full,
        SourceUnusable,
        /// It lies there already.
        AlreadyThere,
        /// The target is the folder itself, or lies in it.
        IntoItself,
        NameTooLong,
        /// The target's file system has no files of that size.
        TooLarge,
        /// It can be copied, but not taken away from where it is.
        CannotLeave,
        /// Devices are never copied.
        IsDevice,
        /// It kept changing while it was copied.
        Changed,
        /// The error says why.
        NotTransferred,
        /// It was copied, but the target has no room for all its extended attributes. The original of a file stays.
        WithoutAttributes,
        /// It was copied, but the original, or a part of it, is still there.
        NotRemoved,
        /// It is not where it was put any more, or the error says why.
        NotUndone,
        /// The words say why.
        NotTrashed,
    };

    Kind kind;
    std::string path;
    int error = 0;
    /// The desktop's.
    std::string words = {};
};

/// The first of them, and how many there are.
class Problems {
public:
    static constexpr std::size_t mostKept = 100;

    void add(Problem problem)
    {
        ++m_count;
        if (m_kept.size() < mostKept)
            m_kept.push_back(std::move(problem));
    }
    [[nodiscard]] const std::vector<Problem>& kept() const { return m_kept; }
    [[nodiscard]] std::size_t count() const { return m_count; }
    [[nodiscard]] bool empty() const { return m_count == 0; }

private:
    std::vector<Problem> m_kept;
    std::size_t m_count = 0;
};

} // namespace MenuExtension::Transfers
