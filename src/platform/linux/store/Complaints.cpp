#include "platform/linux/store/Complaints.h"

#include "platform/linux/system/Complaint.h"

namespace LinuxDesktop {

void Complaints::complain(const std::string& line, std::string_view consequence)
{
    const std::lock_guard lock(m_mutex);
    if (m_said.insert(line).second)
        LinuxDesktop::complain(line + std::string(consequence));
}

void Complaints::allIsWell()
{
    const std::lock_guard lock(m_mutex);
    m_said.clear();
}

} // namespace LinuxDesktop
