#include "platform/linux/mailing/ComposeEmail.h"

#include "platform/linux/mailing/EmailPortal.h"
#include "platform/linux/mailing/MailCommand.h"
#include "platform/linux/mailing/MailMessage.h"

#include <QEventLoop>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace LinuxDesktop {

namespace {

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

/// Sleeps until then, or until the process is asked to end once more. It has stopped to listen for that otherwise,
/// and the signals are blocked.
void sleepUntil(MailMessage::Clock::time_point time)
{
    sigset_t endings;
    sigemptyset(&endings);
    for (const int ending : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&endings, ending);
    for (auto left = time - MailMessage::Clock::now(); left > left.zero(); left = time - MailMessage::Clock::now()) {
        const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
        const timespec timeout{seconds.count(), (left - seconds).count()};
        if (::sigtimedwait(&endings, nullptr, &timeout) > 0)
            return;
    }
}

class ComposeEmail final : public NS::SharingService {
public:
    ComposeEmail(std::optional<QDBusConnection> connection, MailMessage::Clock::duration archiveStay)
        : m_connection(std::move(connection)), m_archiveStay(archiveStay)
    {}

    ~ComposeEmail() override
    {
        auto end = MailMessage::Clock::now();
        for (const auto& message : m_messages)
            if (const auto since = message->temporaryHandedOver())
                end = std::max(end, *since + m_archiveStay);
        sleepUntil(end);
    }

    void performWithItems(const std::vector<NS::URL>& items) override
    {
        std::vector<std::string> paths;
        std::ranges::transform(items, std::back_inserter(paths), absolutePath);
        const auto& message = m_messages.emplace_back(std::make_unique<MailMessage>(m_connection, std::move(paths)));
        // Before the program's own event loop runs the hand-over is all there is to do, and the caller counts from
        // it.
        if (QThread::currentThread()->loopLevel() > 0)
            return;
        QEventLoop loop;
        QObject::connect(message.get(), &MailMessage::settled, &loop, &QEventLoop::quit);
        loop.exec();
    }

private:
    std::optional<QDBusConnection> m_connection;
    MailMessage::Clock::duration m_archiveStay;
    std::vector<std::unique_ptr<MailMessage>> m_messages;
};

} // namespace

std::unique_ptr<NS::SharingService> composeEmailService(SessionBus& bus, std::chrono::milliseconds archiveStay)
{
    auto connection = bus.connection();
    // The portal is asked last: the answer may take its start, and a desktop with xdg-email has the service anyway.
    if (!Command::find(MailCommand::name) && !(connection && EmailPortal::exists(*connection)))
        return nullptr;
    return std::make_unique<ComposeEmail>(std::move(connection), archiveStay);
}

} // namespace LinuxDesktop
