#include "Settings.h"

#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/Store.h"
#include "platform/linux/system/FileDescriptor.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace StoreBench {

namespace {

using LinuxDesktop::FileDescriptor;

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::perror(what);
    std::exit(1);
}

class SystemCallSettings : public Settings {
public:
    explicit SystemCallSettings(const std::string& folder)
        : m_folder(folder), m_path(folder + "/raw"), m_temporary(folder + "/raw.new")
    {}

    void store(int number) override
    {
        m_bytes.assign(fileSize, static_cast<char>('a' + number % 26));
        {
            const FileDescriptor file(::open(m_temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
            require(::write(file.get(), m_bytes.data(), m_bytes.size()) == static_cast<ssize_t>(m_bytes.size()),
                    "write");
            require(::fsync(file.get()) == 0, "fsync");
        }
        require(std::rename(m_temporary.c_str(), m_path.c_str()) == 0, "rename");
        flushFolder(m_folder);
    }

private:
    std::string m_folder;
    std::string m_path;
    std::string m_temporary;
    std::string m_bytes;
};

class StoreSettings : public Settings {
public:
    explicit StoreSettings(const std::string& folder) : m_store(folder), m_domain(m_store.open("store"))
    {
        const auto empty = LinuxDesktop::PropertyList::serialise(NS::Value::Dictionary{{"number", 0}, {"text", ""}});
        m_domain->setObject_forKey(std::string(fileSize - empty->size(), 'x'), "text");
        require(m_domain->synchronize(), "synchronize");
    }

    void store(int number) override
    {
        m_domain->setObject_forKey(number, "number");
        require(m_domain->synchronize(), "synchronize");
    }

private:
    LinuxDesktop::Store m_store;
    std::shared_ptr<LinuxDesktop::Domain> m_domain;
};

} // namespace

void flushFolder(const std::string& folder)
{
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    require(::fsync(opened.get()) == 0, "fsync of the folder");
}

std::unique_ptr<Settings> withSystemCalls(const std::string& folder)
{
    return std::make_unique<SystemCallSettings>(folder);
}

std::unique_ptr<Settings> withStore(const std::string& folder)
{
    return std::make_unique<StoreSettings>(folder);
}

} // namespace StoreBench
