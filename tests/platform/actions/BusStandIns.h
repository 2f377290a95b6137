#pragma once

#include "extension/bus/Handles.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A connection of its own, as another program has.
class OtherProgram {
public:
    explicit OtherProgram(const QByteArray& busAddress)
        : m_name(QStringLiteral("other-%1").arg(++s_count)),
          m_connection(QDBusConnection::connectToBus(QString::fromUtf8(busAddress), m_name))
    {}
    ~OtherProgram() { QDBusConnection::disconnectFromBus(m_name); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    [[nodiscard]] QDBusConnection& connection() { return m_connection; }
    /// Its unique name.
    [[nodiscard]] std::string name() const { return m_connection.baseService().toStdString(); }

private:
    inline static int s_count = 0;
    QString m_name;
    QDBusConnection m_connection;
};

/// On the bus, and answers nothing: as a script does while it waits for what it has asked for.
class SilentProgram {
public:
    explicit SilentProgram(const QByteArray& busAddress)
    {
        sd_bus* made = nullptr;
        EXPECT_GE(sd_bus_new(&made), 0);
        m_bus.reset(made);
        EXPECT_GE(sd_bus_set_address(made, busAddress.constData()), 0);
        EXPECT_GE(sd_bus_set_bus_client(made, 1), 0);
        EXPECT_GE(sd_bus_start(made), 0);
    }

    [[nodiscard]] std::string name() const
    {
        const char* name = nullptr;
        EXPECT_GE(sd_bus_get_unique_name(m_bus.get(), &name), 0);
        return name ? name : "";
    }

    /// What it has been asked for until now, but for what any program on the bus answers.
    [[nodiscard]] std::vector<std::string> takeCalls()
    {
        std::vector<std::string> calls;
        sd_bus_message* came = nullptr;
        while (sd_bus_process(m_bus.get(), &came) > 0) {
            if (came && sd_bus_message_is_method_call(came, nullptr, nullptr) > 0)
                calls.emplace_back(sd_bus_message_get_member(came));
            sd_bus_message_unref(std::exchange(came, nullptr));
        }
        return calls;
    }

private:
    MenuExtension::Bus m_bus;
};

/// Notes what it is asked to show: the method, the one address, and the token.
class FileManagerStandIn : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FileManagerStandIn(const QByteArray& busAddress) : m_program(busAddress)
    {
        m_program.connection().registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                              QDBusConnection::ExportAllSlots);
    }

    void takeName() { m_program.connection().registerService(QStringLiteral("org.freedesktop.FileManager1")); }
    [[nodiscard]] std::string name() const { return m_program.name(); }
    [[nodiscard]] QStringList takeCalls() { return std::exchange(m_calls, {}); }

public slots:
    void ShowItems(const QStringList& addresses, const QString& token) { note("ShowItems", addresses, token); }
    void ShowFolders(const QStringList& addresses, const QString& token) { note("ShowFolders", addresses, token); }

private:
    void note(const char* method, const QStringList& addresses, const QString& token)
    {
        m_calls << QString::fromLatin1(method) + u' ' + addresses.join(u' ') + u' ' + token;
    }

    OtherProgram m_program;
    QStringList m_calls;
};

/// Takes a picture, and answers as it is told.
class WallpaperPortalStandIn : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Wallpaper")

public:
    enum class Manner { Responds, RespondsElsewhere, Refuses, Vanishes };

    WallpaperPortalStandIn(const QByteArray& busAddress, Manner manner, uint response = 0)
        : m_program(busAddress), m_manner(manner), m_response(response)
    {
        m_program.connection().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                              QDBusConnection::ExportAllSlots);
        m_program.connection().registerService(service());
    }

    /// What the descriptor led to.
    [[nodiscard]] const std::optional<QByteArray>& picture() const { return m_picture; }

public slots:
    QDBusObjectPath SetWallpaperFile(const QString&, const QDBusUnixFileDescriptor& picture,
                                     const QVariantMap& options)
    {
        QFile file;
        if (file.open(picture.fileDescriptor(), QIODevice::ReadOnly))
            m_picture = file.readAll();
        if (m_manner == Manner::Refuses) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("no"));
            return {};
        }
        const QString sender = message().service().mid(1).replace(u'.', u'_');
        const QString token = m_manner == Manner::RespondsElsewhere
                                  ? QStringLiteral("elsewhere")
                                  : options.value(QStringLiteral("handle_token")).toString();
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
        if (m_manner == Manner::Vanishes)
            QTimer::singleShot(0, this, [this] { m_program.connection().unregisterService(service()); });
        else if (m_manner == Manner::RespondsElsewhere)
            // The caller learns only now where the answer comes.
            startTimerFor([this, path] { respond(path); });
        else
            respond(path);
        return QDBusObjectPath(path);
    }

private:
    static QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }

    template<class Action>
    void startTimerFor(Action action)
    {
        QObject::connect(&m_again, &QTimer::timeout, this, action);
        m_again.start(50);
    }

    void respond(const QString& path)
    {
        auto signal = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Request"),
                                                 QStringLiteral("Response"));
        m_program.connection().send(signal << m_response << QVariantMap());
    }

    OtherProgram m_program;
    Manner m_manner;
    uint m_response;
    QTimer m_again;
    std::optional<QByteArray> m_picture;
};

/// Notes what is posted, in the extension's name or another.
class NotificationObserver : public QObject {
    Q_OBJECT

public:
    explicit NotificationObserver(const QByteArray& busAddress) : m_program(busAddress)
    {
        m_program.connection().connect({}, QStringLiteral("/com/orvikstudio/DistributedNotificationCenter"),
                                       QStringLiteral("com.orvikstudio.DistributedNotificationCenter"),
                                       QStringLiteral("Posted"), this, SLOT(note(QString, QString)));
    }

    Q_SLOT void note(const QString& name, const QString& object) { m_posted << name + u' ' + object; }
    [[nodiscard]] const QStringList& posted() const { return m_posted; }

private:
    OtherProgram m_program;
    QStringList m_posted;
};
