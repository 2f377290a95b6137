#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QString>
#include <QVariantMap>

struct ActionRow {
    QString identifier;
    QString title;
    QString icon;
    uint appliesTo = 0;
};

struct FolderRow {
    QString path;
    bool active = true;
};

Q_DECLARE_METATYPE(ActionRow)

/// What a companion says that has these settings, and no custom folders.
QVariantMap properties(const QList<ActionRow>& actions, const QList<FolderRow>& folders, bool showIcons = true,
                       bool inSubmenu = false);
/// One action, for anything, in one folder.
QVariantMap someProperties(const QString& title = QStringLiteral("Open Terminal"),
                           const QString& folder = QStringLiteral("/work"));

/// Has the companion's object on a connection of its own, and its name while it is told to.
class CompanionStandIn : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit CompanionStandIn(const QString& address);
    ~CompanionStandIn() override;

    void appear();
    void vanish();
    /// Says that something has changed.
    void announce();
    /// Sends what it answers to a question of before.
    void answer(const QDBusMessage& question) { m_connection.send(question.createReply(answers)); }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
    QString introspect(const QString& path) const override;

    /// To GetAll.
    QVariantList answers{someProperties()};
    /// Takes questions and answers none.
    bool isSilent = false;
    QList<QDBusMessage> questions;
    QList<QDBusMessage> runs;

private:
    QDBusConnection m_connection;
};
