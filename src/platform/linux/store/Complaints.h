#pragma once

#include <mutex>
#include <set>
#include <string>

namespace LinuxDesktop {

/// Writes one line on standard error. Any thread.
void report(const std::string& line);

/// Reports what goes wrong, once each until things go well again. Any thread.
class Complaints {
public:
    void complain(const std::string& line);
    void allIsWell();

private:
    std::mutex m_mutex;
    std::set<std::string> m_reported;
};

} // namespace LinuxDesktop
