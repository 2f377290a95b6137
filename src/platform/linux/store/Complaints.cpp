#include "platform/linux/store/Complaints.h"

#include <cstdio>

namespace LinuxDesktop {

void report(const std::string& line)
{
    std::fprintf(stderr, "orvik-menu: %s\n", line.c_str());
}

void Complaints::complain(const std::string& line)
{
    const std::lock_guard lock(m_mutex);
    if (m_reported.insert(line).second)
        report(line);
}

void Complaints::allIsWell()
{
    const std::lock_guard lock(m_mutex);
    m_reported.clear();
}

} // namespace LinuxDesktop
