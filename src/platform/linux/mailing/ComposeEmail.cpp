#include "platform/linux/mailing/ComposeEmail.h"

#include "platform/linux/mailing/EmailPortal.h"
#include "platform/linux/mailing/MailCommand.h"
#include "platform/linux/mailing/MailableName.h"
#include "platform/linux/mailing/ZipArchive.h"
#include "platform/linux/system/Complaint.h"
#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/system/TemporaryFolders.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <list>
#include <optional>
#include <string>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace LinuxDesktop {

namespace {

using Clock = std::chrono::steady_clock;

/// The item's absolute path, without a folder's closing slash.
std::string absolutePath(const NS::URL& item)
{
    std::error_code error;
    const auto absolute = std::filesystem::absolute(item.path(), error);
    std::string path = error ? item.path() : absolute.native();
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string fileName(const std::string& path)
{
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.empty() ? "Folder" : name;
}

/// The file, open for reading; nothing, and a complaint, when it cannot be read or is not a file.
FileDescriptor openFile(const std::string& path)
{
    // Not blocking: a pipe would wait for its writer.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0) {
        complain("cannot attach", path, errno);
        return {};
    }
    if (!S_ISREG(status.st_mode)) {
        complain("cannot attach", path, "it is not a file");
        return {};
    }
    return file;
}

/// Files on their way to the mail program, in a thread of their own.
class HandOver {
public:
    HandOver(std::optional<QDBusConnection> connection, TemporaryFolders& folders)
        : m_connection(std::move(connection)), m_folders(folders)
    {}

    /// Attaches the items to one message, and looks after the mail program that was started for it until `ending`
    /// becomes readable.
    void run(const std::vector<NS::URL>& items, const FileDescriptor& ending)
    {
        std::vector<std::string> files;
        std::vector<FileDescriptor> opened;
        for (const auto& item : items) {
            auto file = fileFor(absolutePath(item));
            if (!file)
                return;
            opened.push_back(openFile(*file));
            if (!opened.back())
                return;
            files.push_back(std::move(*file));
        }
        if (!throughPortal(opened))
            throughCommand(std::move(files), ending);
    }

    /// When a file was handed over that the program made itself; nothing when none was.
    [[nodiscard]] std::optional<Clock::time_point> temporaryHandedOver() const { return m_temporaryHandedOver; }

private:
    /// The file to attach for the item: itself, the archive of a folder, or a copy where the name is no text.
    std::optional<std::string> fileFor(std::string path)
    {
        std::error_code error;
        if (std::filesystem::is_directory(path, error)) {
            auto archive = temporaryFile(mailableName(fileName(path), ".zip"));
            if (!archive || !zipFolder(path, fileName(path), *archive))
                return std::nullopt;
            return archive;
        }
        return isUtf8(path) ? std::move(path) : mailableCopy(path);
    }

    std::optional<std::string> mailableCopy(const std::string& path)
    {
        auto copy = temporaryFile(mailableName(fileName(path)));
        if (!copy)
            return std::nullopt;
        std::error_code error;
        if (std::filesystem::copy_file(path, *copy, error))
            return copy;
        complain("cannot copy", path, error.value());
        ::unlink(copy->c_str());
        return std::nullopt;
    }

    std::optional<std::string> temporaryFile(const std::string& name)
    {
        const auto folder = m_folders.make();
        if (!folder)
            return std::nullopt;
        m_madeTemporary = true;
        return *folder + '/' + name;
    }

    [[nodiscard]] bool throughPortal(const std::vector<FileDescriptor>& files)
    {
        if (!m_connection)
            return false;
        const QDBusMessage answer = EmailPortal::compose(*m_connection, files);
        if (answer.type() != QDBusMessage::ReplyMessage) {
            m_portalError = answer.errorMessage().toStdString();
            return false;
        }
        handedOver();
        return true;
    }

    void throughCommand(std::vector<std::string> files, const FileDescriptor& ending)
    {
        const auto command = Command::find(MailCommand::name);
        if (!command) {
            complain("no xdg-email, and no answer from the portal for", files.front(), m_portalError);
            return;
        }
        for (auto& file : files) {
            auto mailable = isMailablePath(file) ? std::move(file) : mailableCopy(file);
            if (!mailable)
                return;
            file = std::move(*mailable);
        }
        auto process = MailCommand::start(*command, files);
        if (!process)
            return;
        handedOver();
        if (const auto status = process->wait(ending); status && *status != 0)
            complain("the attachment was refused by", *command, "exit status " + std::to_string(*status));
    }

    void handedOver()
    {
        if (m_madeTemporary)
            m_temporaryHandedOver = Clock::now();
    }

    std::optional<QDBusConnection> m_connection;
    TemporaryFolders& m_folders;
    std::string m_portalError = "there is no session bus";
    bool m_madeTemporary = false;
    std::optional<Clock::time_point> m_temporaryHandedOver;
};

class ComposeEmail final : public NS::SharingService {
public:
    ComposeEmail(std::optional<QDBusConnection> connection, Clock::duration archiveStay)
        : m_connection(std::move(connection)), m_archiveStay(archiveStay), m_ending(::eventfd(0, EFD_CLOEXEC))
    {}

    ~ComposeEmail() override
    {
        ::eventfd_write(m_ending.get(), 1);
        for (auto& message : m_messages)
            message.thread.join();
        for (const auto& message : m_messages)
            if (const auto since = message.handOver.temporaryHandedOver())
                std::this_thread::sleep_until(*since + m_archiveStay);
    }

    void performWithItems(const std::vector<NS::URL>& items) override
    {
        auto& message = m_messages.emplace_back(HandOver(m_connection, m_folders));
        message.thread = std::thread([this, &message, items] {
            TemporaryFolders::removeLeftovers();
            message.handOver.run(items, m_ending);
        });
    }

private:
    struct Message {
        explicit Message(HandOver itsHandOver) : handOver(std::move(itsHandOver)) {}

        HandOver handOver;
        std::thread thread;
    };

    std::optional<QDBusConnection> m_connection;
    Clock::duration m_archiveStay;
    FileDescriptor m_ending;
    TemporaryFolders m_folders;
    std::list<Message> m_messages;
};

} // namespace

std::unique_ptr<NS::SharingService> composeEmailService(SessionBus& bus, std::chrono::milliseconds archiveStay)
{
    auto connection = bus.connection();
    // The portal is asked last: the answer may take its start, and a desktop with xdg-email has the service anyway.
    if (!Command::find(MailCommand::name) && !(connection && EmailPortal::answers(*connection)))
        return nullptr;
    return std::make_unique<ComposeEmail>(std::move(connection), archiveStay);
}

} // namespace LinuxDesktop
