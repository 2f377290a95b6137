#include "extension/bridges/dolphin/Properties.h"

#include "Bus.h"
#include "CompanionStandIn.h"
#include "Waiting.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/Deployment.h"

#include <QDBusPendingCallWatcher>

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace BusInterface::FinderSyncMenu;
using DolphinBridge::readProperties;
using MenuExtension::MenuSettings;

namespace Limits = DolphinBridge::Limits;

namespace {

/// Answers travel over a bus: only those that come from there are read like those of a companion.
class ReadProperties : public testing::Test {
protected:
    ReadProperties() { m_companion.appear(); }
    ~ReadProperties() override { QDBusConnection::disconnectFromBus(m_reader.name()); }

    std::optional<MenuSettings> readAnswer(const QVariantList& answer)
    {
        m_companion.answers = answer;
        const QString name = QString::fromStdString(std::string(Deployment::extensionIdentifier));
        QDBusMessage question = QDBusMessage::createMethodCall(
            name, QString::fromStdString(BusInterface::objectPath(Deployment::extensionIdentifier)),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
        const QDBusPendingCallWatcher watcher(m_reader.asyncCall(question << QString::fromLatin1(interface)));
        if (!waitUntil([&] { return watcher.isFinished(); }))
            ADD_FAILURE() << "no answer";
        return readProperties(watcher.reply());
    }

    std::optional<MenuSettings> read(const QVariantMap& properties) { return readAnswer({properties}); }

    std::optional<MenuSettings> readWith(const char* property, const QVariant& value)
    {
        QVariantMap properties = someProperties();
        properties[QString::fromLatin1(property)] = value;
        return read(properties);
    }

private:
    Bus m_bus;
    QDBusConnection m_reader = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("reader"));
    CompanionStandIn m_companion{m_bus.address()};
};

QList<ActionRow> actions(std::size_t count)
{
    QList<ActionRow> rows;
    for (std::size_t row = 0; row < count; ++row)
        rows += ActionRow{QStringLiteral("an-action"), QStringLiteral("Title"), QStringLiteral("icon"), 1};
    return rows;
}

} // namespace

TEST_F(ReadProperties, AreReadAsTheCompanionSaysThem)
{
    const auto read =
        this->read(properties({{QStringLiteral("one"), QStringLiteral("F\u00fcnf & 6"), {}, 3},
                               {QStringLiteral("two"), QStringLiteral("Two"), QStringLiteral("x"), 9}},
                              {{QStringLiteral("/w\u00f6rk"), true}, {QStringLiteral("/off"), false}}, false, true));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->actions.size(), 2U);
    EXPECT_EQ(read->actions[0], (MenuExtension::MenuAction{"one", "F\u00fcnf & 6", "", 3}));
    EXPECT_EQ(read->actions[1], (MenuExtension::MenuAction{"two", "Two", "x", 9}));
    EXPECT_TRUE(read->scope.containsItem("/w\u00f6rk/a"));
    EXPECT_FALSE(read->scope.containsItem("/off/a"));
    EXPECT_FALSE(read->showIcons);
    EXPECT_TRUE(read->inSubmenu);
    EXPECT_TRUE(read->targets.empty());
}

TEST_F(ReadProperties, HaveTheCustomFoldersThatAreFolders)
{
    const auto read =
        readWith(CustomFolders::name,
                 QStringList{QStringLiteral("/w\u00f6rk/"), {}, QStringLiteral("relative"), QStringLiteral("/a\nb")});
    ASSERT_TRUE(read);
    EXPECT_EQ(read->targets, (std::vector<MenuExtension::Target>{{"/w\u00f6rk", "w\u00f6rk", "/w\u00f6rk"},
                                                                 {"/a\nb", "a\u21b5b", "/a\u21b5b"}}));
}

TEST_F(ReadProperties, HaveNoMoreCustomFoldersThanAMenuCanShow)
{
    QStringList folders(QVector<QString>(100'000, QStringLiteral("/many")).toList());
    const int last = int{MenuExtension::mostTargets} - 1;
    folders[0] = QLatin1Char('/') + QString(1 << 24, QLatin1Char('a'));
    folders[last] = QStringLiteral("/last");
    folders[last + 1] = QStringLiteral("/one/more");
    const auto read = readWith(CustomFolders::name, folders);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->targets.size(), 2U);
    EXPECT_EQ(read->targets.back().path, "/last");
}

TEST_F(ReadProperties, ThatTheMenuDoesNotNeedCountForNothing)
{
    EXPECT_TRUE(readWith("DirectoryURLs", QStringList{QStringLiteral("file:///x")}));
    EXPECT_TRUE(readWith("Whatever", QVariant::fromValue(QDBusVariant(QVariantMap{{QStringLiteral("a"), 1}}))));
}

TEST_F(ReadProperties, OfWhichOneIsMissingAreNone)
{
    for (const QString& property : someProperties().keys()) {
        QVariantMap properties = someProperties();
        properties.remove(property);
        EXPECT_FALSE(read(properties)) << property.toStdString();
    }
}

TEST_F(ReadProperties, OfAnotherTypeAreNone)
{
    const QVariantList values{QStringLiteral("text"),
                              7U,
                              QVariantMap{{QStringLiteral("a"), 1}},
                              QStringList{QStringLiteral("a")},
                              QByteArray("bytes"),
                              QVariant::fromValue(QDBusVariant(true)),
                              QVariant::fromValue(QVariantList{1, QStringLiteral("a")}),
                              QVariant::fromValue(ActionRow())};
    for (const char* const property :
         {Actions::name, Scope::name, CustomFolders::name, ShowMenuIcon::name, ShowInSubmenu::name}) {
        for (const QVariant& value : values) {
            const bool isList = property == CustomFolders::name && value.userType() == QMetaType::QStringList;
            EXPECT_EQ(readWith(property, value).has_value(), isList) << property << ' ' << value.typeName();
        }
    }
    EXPECT_FALSE(readWith(Scope::name, QVariant::fromValue(actions(1))));
    EXPECT_FALSE(readWith(CustomFolders::name, QVariant::fromValue(actions(1))));
    EXPECT_FALSE(readWith(ShowMenuIcon::name, QVariant::fromValue(actions(1))));
}

TEST_F(ReadProperties, AreNoneInAnotherAnswer)
{
    EXPECT_FALSE(readAnswer({}));
    EXPECT_FALSE(readAnswer({QStringLiteral("text")}));
    EXPECT_FALSE(readAnswer({someProperties(), someProperties()}));
    EXPECT_FALSE(readAnswer({QVariant::fromValue(actions(1))}));
    EXPECT_FALSE(readProperties(QDBusMessage()));
    EXPECT_FALSE(readProperties(QDBusMessage::createError(QDBusError::Failed, QStringLiteral("no"))));
}

TEST_F(ReadProperties, DeepInOthersAreRead)
{
    QVariant deep = 1;
    for (int depth = 0; depth < 60; ++depth)
        deep = QVariant::fromValue(QDBusVariant(deep));
    EXPECT_TRUE(readWith("Deep", deep));
    EXPECT_FALSE(readWith(Actions::name, deep));
}

TEST_F(ReadProperties, AreNoneBeyondTheLimits)
{
    EXPECT_TRUE(readWith(Actions::name, QVariant::fromValue(actions(Limits::actions))));
    EXPECT_FALSE(readWith(Actions::name, QVariant::fromValue(actions(Limits::actions + 1))));

    const auto withBytes = [&](std::size_t bytes) {
        return readWith(Scope::name, '+' + QByteArray(static_cast<int>(bytes) - 2, '/') + '\0');
    };
    EXPECT_TRUE(withBytes(MenuExtension::Scope::mostBytes));
    EXPECT_FALSE(withBytes(MenuExtension::Scope::mostBytes + 1));

    QList<ActionRow> row = actions(1);
    row[0].title = QString(static_cast<int>(Limits::word), QLatin1Char('x'));
    EXPECT_TRUE(readWith(Actions::name, QVariant::fromValue(row)));
    row[0].title += QLatin1Char('x');
    EXPECT_FALSE(readWith(Actions::name, QVariant::fromValue(row)));
}

TEST_F(ReadProperties, CallWhatAsksForAnotherFolderAsTheCompanionDoes)
{
    const auto read = readWith(OtherFolder::name, QStringList{QStringLiteral("Ordner…"), QStringLiteral("Fragt")});

    ASSERT_TRUE(read);
    EXPECT_EQ(read->otherFolder, (MenuExtension::Target{"", "Ordner…", "Fragt"}));
}

TEST_F(ReadProperties, AreNoneWhereWhatAsksForAnotherFolderHasNoTitle)
{
    const auto english = read(someProperties());
    ASSERT_TRUE(english);
    EXPECT_EQ(english->otherFolder, MenuSettings().otherFolder);
    for (const QVariant& wrong : {QVariant(1), QVariant(QStringList()), QVariant(QStringList{{}, {}}),
                                  QVariant(QStringList{QString(1001, u'x'), QString(1001, u'x')})})
        EXPECT_FALSE(readWith(OtherFolder::name, wrong));
}
