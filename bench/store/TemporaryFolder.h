#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace StoreBench {

/// A folder in the current one, which should be on a disk. It goes with the program.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        if (!::mkdtemp(m_path.data())) {
            std::perror("mkdtemp");
            std::exit(1);
        }
        m_path = std::filesystem::absolute(m_path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    std::string m_path = "orvik-bench-XXXXXX";
};

} // namespace StoreBench
