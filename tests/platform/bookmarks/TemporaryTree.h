#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

/// A folder that goes with the test, with everything in it. It lies so deep that a search around a place in it looks
/// last at the folder for temporary files, where there may be anything.
class TemporaryTree {
public:
    TemporaryTree()
    {
        if (!::mkdtemp(m_root.data()))
            throw std::runtime_error("there is no folder to test in");
        m_path = m_root + "/1/2/3/4";
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryTree()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
    }
    TemporaryTree(const TemporaryTree&) = delete;
    TemporaryTree& operator=(const TemporaryTree&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }
    /// The path of a name in the tree.
    [[nodiscard]] std::string operator/(const std::string& name) const { return m_path + '/' + name; }
    /// Makes the folder, and those above it.
    std::string makeFolder(const std::string& name) const
    {
        std::filesystem::create_directories(m_path + '/' + name);
        return m_path + '/' + name;
    }

private:
    std::string m_root = std::filesystem::temp_directory_path().native() + "/orvik-bookmarks-XXXXXX";
    std::string m_path;
};
