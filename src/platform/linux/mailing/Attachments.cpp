#include "platform/linux/mailing/Attachments.h"

#include "platform/LocalizedString.h"
#include "platform/linux/mailing/MailableName.h"
#include "platform/linux/mailing/SparingFile.h"
#include "platform/linux/mailing/ZipArchive.h"
#include "platform/linux/system/Complaint.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace LinuxDesktop {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} * 1024;

std::string fileName(const std::string& path)
{
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.empty() ? NS::LocalizedString("Attachments", "Folder") : name;
}

AttachingFailure unreadable(const std::string& path, const std::string& reason)
{
    complain("cannot attach", path, reason);
    return {AttachingFailure::Kind::Unreadable, reason};
}

AttachingFailure unreadable(const std::string& path, int error)
{
    return unreadable(path, std::generic_category().message(error));
}

} // namespace

void Attachments::make()
{
    TemporaryFolders::removeLeftovers();
    for (const auto& item : m_items) {
        auto file = fileFor(item);
        if (!file || !open(*file))
            return;
        m_paths.push_back(std::move(*file));
    }
}

void Attachments::makeMailable()
{
    for (auto& path : m_paths) {
        if (isMailablePath(path))
            continue;
        auto mailable = copy(path);
        if (!mailable)
            return;
        path = std::move(*mailable);
    }
}

std::optional<std::string> Attachments::fileFor(const std::string& item)
{
    std::error_code error;
    if (std::filesystem::is_directory(item, error))
        return zip(item);
    return isUtf8(item) ? item : copy(item);
}

bool Attachments::open(const std::string& path)
{
    // Not blocking: a pipe would wait for its writer.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0) {
        fail(unreadable(path, errno));
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        fail(unreadable(path, std::string(NS::LocalizableString("Attachments", "it is not a file"))));
        return false;
    }
    m_files.push_back(std::move(file));
    return true;
}

std::optional<std::string> Attachments::zip(const std::string& folder)
{
    auto archive = temporaryFile(mailableName(fileName(folder), ".zip"));
    if (!archive)
        return std::nullopt;
    if (auto failure = zipFolder(folder, fileName(folder), *archive, progress))
        return fail(std::move(*failure));
    return archive;
}

std::optional<std::string> Attachments::copy(const std::string& path)
{
    if (!open(path))
        return std::nullopt;
    const FileDescriptor source = std::exchange(m_files.back(), {});
    m_files.pop_back();
    auto copied = temporaryFile(mailableName(fileName(path)));
    if (!copied)
        return std::nullopt;
    SparingFile target(*copied);
    std::vector<char> buffer(bufferSize);
    for (ssize_t length = 1; length > 0 && target.error() == 0;) {
        if (progress.cancelled)
            return fail({AttachingFailure::Kind::Cancelled});
        length = ::read(source.get(), buffer.data(), buffer.size());
        if (length < 0)
            return fail(unreadable(path, errno));
        target.write(buffer.data(), static_cast<std::size_t>(length));
        progress.bytes += static_cast<std::uint64_t>(length);
    }
    if (target.close())
        return copied;
    complain("cannot write", *copied, target.error());
    return fail(AttachingFailure::unwritable(target.error()));
}

std::optional<std::string> Attachments::temporaryFile(const std::string& name)
{
    const auto folder = m_folders->make();
    if (!folder)
        return fail(AttachingFailure::unwritable(errno));
    m_temporary = true;
    return *folder + '/' + name;
}

std::nullopt_t Attachments::fail(AttachingFailure failure)
{
    m_failure = std::move(failure);
    m_folders.reset();
    return std::nullopt;
}

} // namespace LinuxDesktop
