#pragma once

#include <cstdlib>
#include <string>

/// The folders in which programs are looked for; as they were once it is destroyed.
class ProgramPath {
public:
    ProgramPath() : m_before(std::getenv("PATH")) {}
    explicit ProgramPath(const std::string& folders) : ProgramPath() { set(folders); }
    ~ProgramPath() { set(m_before); }
    ProgramPath(const ProgramPath&) = delete;
    ProgramPath& operator=(const ProgramPath&) = delete;

    void set(const std::string& folders) { ::setenv("PATH", folders.c_str(), 1); }
    [[nodiscard]] const std::string& before() const { return m_before; }

private:
    std::string m_before;
};
