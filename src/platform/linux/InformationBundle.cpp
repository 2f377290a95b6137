#include "platform/linux/InformationBundle.h"

#include "platform/linux/store/PropertyList.h"

#include <fstream>
#include <iterator>

namespace LinuxDesktop {

const std::optional<NS::Value::Dictionary>& InformationBundle::infoDictionary()
{
    if (m_read)
        return m_information;
    m_read = true;
    std::ifstream file(m_folder + "/Info.plist", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (const auto parsed = PropertyList::parse(bytes); parsed && parsed->dictionary())
        m_information = *parsed->dictionary();
    return m_information;
}

} // namespace LinuxDesktop
