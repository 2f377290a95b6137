#include "CompanionProcess.h"

#include "../bus/Waiting.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/store/Store.h"
#include "settings/Deployment.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

#include <csignal>
#include <sys/prctl.h>

namespace {

const QString name =
    QString::fromUtf8(Deployment::extensionIdentifier.data(), Deployment::extensionIdentifier.size());
const QString path = companionPath();
const QString interface = QStringLiteral("com.orvikstudio.FinderSyncExtension");

} // namespace

QString companionPath()
{
    return u'/' + QString(name).replace(u'.', u'/').replace(u'-', u'_');
}

CompanionTest::~CompanionTest()
{
    for (const auto& process : m_processes) {
        process->kill();
        process->waitForFinished();
    }
}

QProcess& CompanionTest::start(const QStringList& arguments)
{
    auto& process = *m_processes.emplace_back(std::make_unique<QProcess>());
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_configuration.path());
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.start(m_program, arguments);
    return process;
}

QProcess& CompanionTest::startAndWait()
{
    QProcess& process = start();
    EXPECT_TRUE(waitUntil([&] { return nameIsOwned(); }));
    return process;
}

int CompanionTest::statusOf(QProcess& process)
{
    EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

bool CompanionTest::nameIsOwned()
{
    return connection().interface()->isServiceRegistered(name);
}

QByteArray CompanionTest::introspect()
{
    const QDBusMessage answer = connection().call(QDBusMessage::createMethodCall(
        name, path, QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect")));
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return answer.arguments().value(0).toByteArray();
}

void CompanionTest::quit()
{
    const QDBusMessage answer =
        connection().call(QDBusMessage::createMethodCall(name, path, interface, QStringLiteral("Quit")));
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
}

QVariant CompanionTest::property(const char* property)
{
    auto get = QDBusMessage::createMethodCall(name, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("Get"));
    get << interface << QString::fromLatin1(property);
    const QDBusMessage answer = connection().call(get);
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QVariantMap CompanionTest::menuProperties()
{
    auto get = QDBusMessage::createMethodCall(name, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("GetAll"));
    get << QStringLiteral("com.orvikstudio.FinderSyncMenu");
    const QDBusMessage answer = connection().call(get);
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return qdbus_cast<QVariantMap>(answer.arguments().value(0));
}

bool CompanionTest::flag(const char* property)
{
    return this->property(property).toBool();
}

QStringList CompanionTest::strings(const char* property)
{
    return this->property(property).toStringList();
}

CompanionTest::Items CompanionTest::items(const char* property)
{
    Items items;
    const auto argument = this->property(property).value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString text;
        bool state = false;
        argument.beginStructure();
        argument >> text >> state;
        argument.endStructure();
        items.emplace_back(text.toStdString(), state);
    }
    argument.endArray();
    return items;
}

bool CompanionTest::watches(const QStringList& addresses)
{
    return waitUntil([&] { return strings("DirectoryURLs") == addresses; });
}

std::string CompanionTest::settingsFolder() const
{
    return m_configuration.path().toStdString() + "/orvik-menu";
}

std::string CompanionTest::suiteFile() const
{
    return LinuxDesktop::settingsPath(settingsFolder(), Deployment::suiteName);
}

void CompanionTest::store(const NS::Value::Dictionary& values) const
{
    LinuxDesktop::Store store(settingsFolder());
    const auto suite = store.open(Deployment::suiteName);
    ASSERT_TRUE(suite);
    suite->replaceContents(values);
    ASSERT_TRUE(suite->synchronize());
}
