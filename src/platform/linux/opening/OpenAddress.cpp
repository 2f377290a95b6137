#include "platform/linux/opening/OpenAddress.h"

#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/portal/PortalRequest.h"
#include "platform/linux/system/Command.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace LinuxDesktop {

namespace {

using namespace std::chrono_literals;

/// Whoever has no program for an address says so sooner; a browser that is started may run for hours.
constexpr std::chrono::milliseconds patience = 1s;
/// Enough for a portal that has to be started first.
constexpr std::chrono::milliseconds portalPatience = 3s;

bool isForBrowsers(const std::string& address)
{
    return address.starts_with("http:") || address.starts_with("https:");
}

/// Clears the program away when it ends, if this process still runs by then.
void clearAwayWhenEnded(Command::Process started)
{
    auto process = std::make_shared<Command::Process>(std::move(started));
    auto* ended = new QSocketNotifier(process->ended().get(), QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(ended, &QSocketNotifier::activated, ended, [process, ended] {
        static_cast<void>(process->exitStatus());
        ended->setEnabled(false);
        ended->deleteLater();
    });
}

bool openByCommand(const std::string& address)
{
    const auto command = Command::find("xdg-open");
    if (!command)
        return false;
    auto process =
        Command::start(*command, {"xdg-open", address},
                       isForBrowsers(address) ? Command::environment() : Command::environmentWithoutBrowser());
    if (!process)
        return false;
    QEventLoop loop;
    bool hasEnded = false;
    auto ended = std::make_unique<QSocketNotifier>(process->ended().get(), QSocketNotifier::Read);
    QObject::connect(ended.get(), &QSocketNotifier::activated, &loop, [&] {
        hasEnded = true;
        loop.quit();
    });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    ended.reset();
    if (hasEnded)
        return process->exitStatus() == 0;
    clearAwayWhenEnded(std::move(*process));
    return true;
}

/// The user is handled once the portal had the time to open the address without asking: from then on it is them
/// that the answer waits for. No answer comes where the program ends first.
std::optional<PortalRequest::Answer> openByPortal(const QDBusConnection& connection, const std::string& address)
{
    const QString noParentWindow = QStringLiteral("");
    const PortalRequest request(connection, QStringLiteral("org.freedesktop.portal.OpenURI"),
                                QStringLiteral("OpenURI"), {noParentWindow, QString::fromStdString(address)}, {},
                                portalPatience);
    QEventLoop loop;
    std::optional<PortalRequest::Answer> answer;
    QObject::connect(&request, &PortalRequest::answered, &loop, [&](PortalRequest::Answer given) {
        answer = given;
        loop.quit();
    });
    QObject::connect(&request, &PortalRequest::taken, &loop,
                     [&loop] { QTimer::singleShot(patience, &loop, &QEventLoop::quit); });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!answer)
        loop.exec();
    return answer;
}

} // namespace

bool openAddress(SessionBus& bus, const std::string& address)
{
    if (const auto connection = bus.connection()) {
        const auto answer = openByPortal(*connection, address);
        if (answer != PortalRequest::Answer::Failed)
            return answer == PortalRequest::Answer::Done;
    }
    return openByCommand(address);
}

bool startProgram(const std::string& path)
{
    auto process = Command::start(path, {path}, Command::environment());
    if (process)
        clearAwayWhenEnded(std::move(*process));
    return process.has_value();
}

} // namespace LinuxDesktop
