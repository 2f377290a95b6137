#include "extension/bridges/dolphin/Request.h"

#include "extension/bridges/dolphin/Guarded.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/Deployment.h"

#include <KStartupInfo>
#include <KUserTimestamp>
#include <KWindowSystem>
#include <QClipboard>
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <utility>

namespace DolphinBridge {

namespace {

namespace Companion = BusInterface::FinderSyncExtension;

/// What the compositor is given time for, in milliseconds: the action is worth more than the place of its window.
constexpr int tokenPatience = 500;

/// One path a line, as people read them.
void copyPaths(const Clicked& clicked)
{
    QStringList lines;
    for (const Clicked::Item& item : clicked.items)
        lines += QString::fromStdString(item.path);
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

QVariant pathsOf(const Clicked& clicked)
{
    QDBusArgument paths;
    paths.beginArray(QMetaType::QByteArray);
    for (const Clicked::Item& item : clicked.items)
        paths << QByteArray::fromStdString(item.path);
    paths.endArray();
    return QVariant::fromValue(paths);
}

void callCompanion(const Choice& choice, const Clicked& clicked, const QDBusConnection& bus, const QString& token)
{
    const std::string name(Deployment::extensionIdentifier);
    QDBusMessage call = QDBusMessage::createMethodCall(
        QString::fromStdString(name), QString::fromStdString(BusInterface::objectPath(name)),
        QString::fromLatin1(Companion::interface), QString::fromLatin1(Companion::Run::name));
    QVariantMap options;
    if (clicked.isBackground)
        options[QStringLiteral("background")] = true;
    if (!choice.target.empty())
        options[QStringLiteral("target")] = QByteArray::fromStdString(choice.target);
    if (!token.isEmpty())
        options[QStringLiteral("activation-token")] = token;
    call.setAutoStartService(false);
    call << QString::fromStdString(choice.action) << pathsOf(clicked) << options;
    // Nobody waits: the companion tells the user itself what it could not do.
    bus.send(call);
}

/// Calls `use` once with what lets another program's window come to the front; with nothing where there is no such
/// thing.
void withActivationToken(QWidget* window, const std::function<void(const QString&)>& use)
{
    if (!KWindowSystem::isPlatformWayland()) {
        use(KWindowSystem::isPlatformX11() ? QString::fromLatin1(KStartupInfo::createNewStartupIdForTimestamp(
                                                 static_cast<quint32>(KUserTimestamp::userTimestamp())))
                                           : QString());
        return;
    }
    QWindow* const surface = window == nullptr ? nullptr : window->window()->windowHandle();
    if (surface == nullptr) {
        use(QString());
        return;
    }
    auto* const waiting = new QObject(QCoreApplication::instance());
    const auto once = std::make_shared<std::function<void(const QString&)>>(use);
    const auto finish = [waiting, once](const QString& token) {
        guarded([&] {
            if (const auto useOnce = std::exchange(*once, nullptr)) {
                waiting->deleteLater();
                useOnce(token);
            }
        });
    };
    const quint32 serial = KWindowSystem::lastInputSerial(surface);
    QObject::connect(KWindowSystem::self(), &KWindowSystem::xdgActivationTokenArrived, waiting,
                     [finish, serial](int asked, const QString& token) {
                         if (static_cast<quint32>(asked) == serial)
                             finish(token);
                     });
    QTimer::singleShot(tokenPatience, waiting, [finish] { finish(QString()); });
    KWindowSystem::requestXdgActivationToken(surface, serial, QGuiApplication::desktopFileName());
}

} // namespace

void request(const Choice& choice, const std::shared_ptr<const Clicked>& clicked, const QDBusConnection& bus,
             const QPointer<QWidget>& window)
{
    if (choice.action == "copy-path-to-clipboard") {
        copyPaths(*clicked);
        return;
    }
    withActivationToken(window, [=](const QString& token) { callCompanion(choice, *clicked, bus, token); });
}

} // namespace DolphinBridge
