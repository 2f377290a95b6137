#pragma once

#include <mutex>
#include <set>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// Says what goes wrong on standard error, once each until things go well again. Any thread.
class Complaints {
public:
    /// `consequence` ends the line, and makes it no other.
    void complain(const std::string& line, std::string_view consequence = {});
    void allIsWell();

private:
    std::mutex m_mutex;
    std::set<std::string> m_said;
};

} // namespace LinuxDesktop
