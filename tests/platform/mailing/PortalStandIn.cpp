#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QTimer>
#include <QVariantMap>

#include <cstdio>
#include <cstdlib>

namespace {

QString folder;
QString behaviour;

void write(const QString& name, const QByteArray& content)
{
    QFile file(folder + u'/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write");
}

} // namespace

/// Writes what it is given to attach: attachmentN the bytes, pathN where they came from; "done" comes last.
class Portal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")
    Q_PROPERTY(uint version READ version)

public:
    [[nodiscard]] uint version() const { return 4; }

public slots:
    QDBusObjectPath ComposeEmail(const QString&, const QVariantMap& options)
    {
        if (behaviour == QLatin1String("refuse")) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("no mail today"));
            return {};
        }
        if (behaviour == QLatin1String("vanish"))
            std::_Exit(0);
        write(QStringLiteral("asked"), {});
        if (behaviour == QLatin1String("be silent")) {
            setDelayedReply(true);
            return {};
        }
        const QString token = options.value(QStringLiteral("handle_token")).toString();
        QString sender = message().service().mid(1);
        sender.replace(u'.', u'_');
        QString handle = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
        if (behaviour == QLatin1String("accept")) {
            keep(options);
            answer(handle, 0);
        } else if (behaviour == QLatin1String("be cancelled")) {
            answer(handle, 1);
        } else if (behaviour == QLatin1String("fail")) {
            answer(handle, 2);
        } else if (behaviour == QLatin1String("fail elsewhere")) {
            handle += QStringLiteral("_of_its_own");
            // After the reply, since nobody knows of the place before.
            QTimer::singleShot(100, this,
                               [this, handle, connection = connection()] { answer(handle, 2, connection); });
        } else if (behaviour == QLatin1String("vanish later")) {
            QTimer::singleShot(100, this, [] { std::_Exit(0); });
        }
        return QDBusObjectPath(handle);
    }

private:
    void answer(const QString& handle, uint response) { answer(handle, response, connection()); }
    static void answer(const QString& handle, uint response, const QDBusConnection& connection)
    {
        auto signal = QDBusMessage::createSignal(handle, QStringLiteral("org.freedesktop.portal.Request"),
                                                 QStringLiteral("Response"));
        signal << response << QVariantMap();
        connection.send(signal);
    }

    static void keep(const QVariantMap& options)
    {
        const auto descriptors = qdbus_cast<QList<QDBusUnixFileDescriptor>>(
            options.value(QStringLiteral("attachment_fds")).value<QDBusArgument>());
        for (int i = 0; i < descriptors.size(); ++i) {
            const int descriptor = descriptors.at(i).fileDescriptor();
            QFile file;
            if (!file.open(descriptor, QIODevice::ReadOnly))
                qFatal("cannot read");
            write(QStringLiteral("attachment%1").arg(i + 1), file.readAll());
            write(QStringLiteral("path%1").arg(i + 1),
                  QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(descriptor)).toUtf8());
        }
        write(QStringLiteral("done"), {});
    }
};

// Arguments: the folder to write to, and what to do with a message: accept, refuse, vanish, vanish later, be silent,
// be cancelled, fail or fail elsewhere (than where it was asked to answer). Says "ready" when it is on the bus.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    folder = QString::fromUtf8(argv[1]);
    behaviour = QString::fromUtf8(argv[2]);
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    Portal portal;
    auto bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties) ||
        !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

#include "PortalStandIn.moc"
