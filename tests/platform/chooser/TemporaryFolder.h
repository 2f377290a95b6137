#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/// A folder that goes, with all it holds, when the test ends. Names are bytes.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path());
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] std::string path(std::string_view name) const { return m_path + "/" + std::string(name); }

    // Each returns the new item's path.
    std::string file(std::string_view name, std::size_t size = 0) const;
    std::string folder(std::string_view name) const;
    std::string link(std::string_view name, const std::string& target) const;
    void remove(std::string_view name) const;
    /// Until the test ends.
    void setMode(std::string_view name, mode_t mode);

private:
    std::string m_path;
    std::vector<std::string> m_changedModes;
};

/// For its lifetime the process has no rights beyond those of an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_changed;
};
