#include "platform/linux/InformationBundle.h"

#include "platform/linux/store/Snapshot.h"

namespace LinuxDesktop {

const std::optional<NS::Value::Dictionary>& InformationBundle::infoDictionary()
{
    if (m_read)
        return m_information;
    m_read = true;
    FileOperations files;
    const Snapshot file = Snapshot::read(files, m_folder + "/Info.plist");
    if (file.state() == Snapshot::State::Readable)
        m_information = file.values();
    return m_information;
}

} // namespace LinuxDesktop
