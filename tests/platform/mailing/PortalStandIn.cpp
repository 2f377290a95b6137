#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QVariantMap>

#include <cstdio>

namespace {

QString folder;
bool refuses = false;

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
        if (refuses) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("no mail today"));
            return {};
        }
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
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/1/1"));
    }
};

// Arguments: the folder to write to, and "accept" or "refuse". Says "ready" when it is on the bus.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    folder = QString::fromUtf8(argv[1]);
    refuses = qstrcmp(argv[2], "refuse") == 0;
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
