#include "CompanionStandIn.h"

#include "extension/menu/Scope.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/AppliesTo.h"
#include "settings/Deployment.h"

#include <QDBusMetaType>
#include <QStringList>

#include <string>
#include <vector>

namespace {

namespace Companion = BusInterface::FinderSyncExtension;
namespace Published = BusInterface::FinderSyncMenu;

const std::string name{Deployment::extensionIdentifier};

QString connectionName()
{
    static int made = 0;
    return QStringLiteral("stand-in-%1").arg(++made);
}

QString path()
{
    return QString::fromStdString(BusInterface::objectPath(name));
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const ActionRow& row)
{
    argument.beginStructure();
    argument << row.identifier << row.title << row.icon << row.appliesTo;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ActionRow& row)
{
    argument.beginStructure();
    argument >> row.identifier >> row.title >> row.icon >> row.appliesTo;
    argument.endStructure();
    return argument;
}

namespace {

QByteArray bytesOf(const QList<FolderRow>& rows)
{
    std::vector<MenuExtension::Folder> folders;
    for (const FolderRow& row : rows)
        folders.push_back({row.path.toStdString(), row.active});
    return QByteArray::fromStdString(MenuExtension::bytesOf(folders));
}

} // namespace

QVariantMap properties(const QList<ActionRow>& actions, const QList<FolderRow>& folders, bool showIcons,
                       bool inSubmenu)
{
    qDBusRegisterMetaType<ActionRow>();
    qDBusRegisterMetaType<QList<ActionRow>>();
    return {{QString::fromLatin1(Published::Actions::name), QVariant::fromValue(actions)},
            {QString::fromLatin1(Published::Scope::name), bytesOf(folders)},
            {QString::fromLatin1(Published::CustomFolders::name), QStringList()},
            {QString::fromLatin1(Published::ShowMenuIcon::name), showIcons},
            {QString::fromLatin1(Published::ShowInSubmenu::name), inSubmenu}};
}

QVariantMap someProperties(const QString& title, const QString& folder)
{
    return properties(
        {{QStringLiteral("open-terminal"), title, QStringLiteral("orvik-menu-open-terminal"), AppliesTo::Anything}},
        {{folder, true}});
}

CompanionStandIn::CompanionStandIn(const QString& address)
    : m_connection(QDBusConnection::connectToBus(address, connectionName()))
{
    if (!m_connection.registerVirtualObject(path(), this))
        qFatal("the stand-in is not on the bus");
}

CompanionStandIn::~CompanionStandIn()
{
    // A connection that ends in the toolkit's own thread is told of the end of its objects in this one.
    m_connection.unregisterObject(path());
    disconnect();
    QDBusConnection::disconnectFromBus(m_connection.name());
}

void CompanionStandIn::appear()
{
    if (!m_connection.registerService(QString::fromStdString(name)))
        qFatal("the companion's name is taken");
}

void CompanionStandIn::vanish()
{
    m_connection.unregisterService(QString::fromStdString(name));
}

void CompanionStandIn::announce()
{
    QDBusMessage signal = QDBusMessage::createSignal(path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                                     QStringLiteral("PropertiesChanged"));
    m_connection.send(signal << QString::fromLatin1(Published::interface) << QVariantMap() << QStringList());
}

bool CompanionStandIn::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.member() == QLatin1String(Companion::Run::name)) {
        runs += message;
        return connection.send(message.createReply());
    }
    questions += message;
    if (!isSilent)
        answer(message);
    return true;
}

QString CompanionStandIn::introspect(const QString& path) const
{
    Q_UNUSED(path);
    return {};
}
