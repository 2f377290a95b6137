#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/bus/interfaces/DistributedNotificationCenter.h"
#include "settings/Deployment.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QUtf8StringView>

#include <cstdio>
#include <string_view>
#include <vector>

namespace {

constexpr int exitSent = 0;
constexpr int exitNotSent = 1;
constexpr int exitUsage = 2;

void printUsage(std::FILE* stream)
{
    std::fprintf(stream,
                 "Usage: orvik-notify NAME [OBJECT]\n"
                 "Posts the notification NAME to running programs, on behalf of OBJECT\n"
                 "(%.*s when left out).\n"
                 "\n"
                 "  --help     print this text\n"
                 "  --version  print the version\n",
                 static_cast<int>(Deployment::extensionIdentifier.size()), Deployment::extensionIdentifier.data());
}

int usageError(const char* what)
{
    std::fprintf(stderr, "orvik-notify: %s\n", what);
    printUsage(stderr);
    return exitUsage;
}

/// Returns when the bus has taken the signal.
int post(const QString& name, const QString& object)
{
    using namespace BusInterface::DistributedNotificationCenter;

    LinuxDesktop::SessionBus bus("orvik-notify: there is no session bus");
    auto connection = bus.connection();
    if (!connection)
        return exitNotSent;
    const bool sent = connection->send(QDBusMessage::createSignal(path, interface, Posted::name) << name << object);
    // The bus handles a program's messages in order: its answer means that it had the signal before.
    const QDBusMessage answer = connection->call(QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    if (!sent || answer.type() != QDBusMessage::ReplyMessage) {
        std::fprintf(stderr, "orvik-notify: the session bus did not take the notification: %s\n",
                     qUtf8Printable(answer.errorMessage()));
        return exitNotSent;
    }
    return exitSent;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string_view> operands;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (optionsEnded || !argument.starts_with('-')) {
            operands.push_back(argument);
        } else if (argument == "--") {
            optionsEnded = true;
        } else if (argument == "--help") {
            printUsage(stdout);
            return exitSent;
        } else if (argument == "--version") {
            std::puts("orvik-notify " ORVIK_VERSION);
            return exitSent;
        } else {
            return usageError("unknown option");
        }
    }
    if (operands.empty() || operands.size() > 2)
        return usageError("one name and at most one object are wanted");
    for (const auto operand : operands)
        if (operand.empty() || !QUtf8StringView(operand).isValidUtf8())
            return usageError("names and objects are text in UTF-8, and not empty");

    const std::string_view object = operands.size() == 2 ? operands[1] : Deployment::extensionIdentifier;
    const QCoreApplication application(argc, argv);
    return post(QString::fromUtf8(operands[0]), QString::fromUtf8(object));
}
