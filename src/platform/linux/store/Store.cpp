#include "platform/linux/store/Store.h"

#include <utility>
#include <vector>

namespace LinuxDesktop {

Store::Store(std::optional<std::string> folder, std::shared_ptr<FileOperations> files)
    : m_folder(std::move(folder)), m_files(std::move(files))
{}

Store::~Store()
{
    m_queue->stop();
    for (const auto& [name, domain] : m_domains)
        domain->finish();
}

void Store::writeNow()
{
    std::vector<std::shared_ptr<Domain>> domains;
    {
        const std::lock_guard lock(m_mutex);
        for (const auto& [name, domain] : m_domains)
            domains.push_back(domain);
    }
    for (const auto& domain : domains)
        domain->synchronize();
}

std::shared_ptr<Domain> Store::open(std::string_view domain)
{
    if (!m_folder || !isDomainName(domain))
        return nullptr;
    std::shared_ptr<Domain> opened;
    {
        const std::lock_guard lock(m_mutex);
        auto& known = m_domains[std::string(domain)];
        if (!known)
            known = std::make_shared<Domain>(m_files, m_queue, *m_folder, domain);
        opened = known;
    }
    return opened->isAccessible() ? opened : nullptr;
}

} // namespace LinuxDesktop
