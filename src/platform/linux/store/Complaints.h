#pragma once

#include <mutex>
#include <set>
#include <string>

namespace LinuxDesktop {

/// Says what goes wrong on standard error, once each until things go well again. Any thread.
class Complaints {
public:
    void complain(const std::string& line);
    void allIsWell();

private:
    std::mutex m_mutex;
    std::set<std::string> m_said;
};

} // namespace LinuxDesktop
