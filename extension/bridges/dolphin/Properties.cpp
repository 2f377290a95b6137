#include "extension/bridges/dolphin/Properties.h"

#include "platform/linux/bus/interfaces/FinderSyncMenu.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <climits>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace DolphinBridge {

namespace {

namespace Published = BusInterface::FinderSyncMenu;
using MenuExtension::MenuAction;
using MenuExtension::MenuSettings;
using MenuExtension::Target;

/// A container that is left again on every way out: the toolkit keeps the places of those that are not.
template<void (QDBusArgument::*Enter)() const, void (QDBusArgument::*Leave)() const>
class Inside {
public:
    explicit Inside(const QDBusArgument& argument) : m_argument(argument) { (m_argument.*Enter)(); }
    ~Inside() { (m_argument.*Leave)(); }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;

private:
    const QDBusArgument& m_argument;
};

using InArray = Inside<&QDBusArgument::beginArray, &QDBusArgument::endArray>;
using InStructure = Inside<&QDBusArgument::beginStructure, &QDBusArgument::endStructure>;
using InMap = Inside<&QDBusArgument::beginMap, &QDBusArgument::endMap>;
using InMapEntry = Inside<&QDBusArgument::beginMapEntry, &QDBusArgument::endMapEntry>;

std::string text(const QDBusArgument& argument)
{
    QString text;
    argument >> text;
    return text.toStdString();
}

bool isShort(const MenuAction& action)
{
    return action.identifier.size() <= Limits::word && action.title.size() <= Limits::word &&
           action.icon.size() <= Limits::word;
}

/// A value that is read later holds its type itself.
bool read(const QVariant& value, std::vector<MenuAction>& actions)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return false;
    const auto list = value.value<QDBusArgument>();
    actions.clear();
    if (list.currentSignature() != QLatin1String(Published::Actions::type))
        return false;
    const InArray array(list);
    while (!list.atEnd()) {
        const InStructure structure(list);
        MenuAction action;
        action.identifier = text(list);
        action.title = text(list);
        action.icon = text(list);
        list >> action.appliesTo;
        if (actions.size() == Limits::actions || !isShort(action))
            return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool read(const QVariant& value, MenuExtension::Scope& scope)
{
    if (value.userType() != QMetaType::QByteArray)
        return false;
    const QByteArray bytes = value.toByteArray();
    auto read = MenuExtension::Scope::fromBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (read)
        scope = *std::move(read);
    return read.has_value();
}

bool read(const QVariant& value, bool& flag)
{
    flag = value.toBool();
    return value.userType() == QMetaType::Bool;
}

/// Lists of plain text the toolkit reads itself.
bool read(const QVariant& value, std::vector<Target>& targets)
{
    const QStringList first = value.toStringList().mid(0, int{MenuExtension::mostTargets});
    std::vector<std::string> folders;
    std::transform(first.begin(), first.end(), std::back_inserter(folders),
                   [](const QString& folder) { return folder.left(PATH_MAX).toStdString(); });
    targets = MenuExtension::targetsOf(folders);
    return value.userType() == QMetaType::QStringList;
}

bool read(const QVariant& value, Target& otherFolder)
{
    const QStringList texts = value.toStringList();
    if (value.userType() != QMetaType::QStringList || texts.size() != 2)
        return false;
    otherFolder.title = texts.first().toStdString();
    otherFolder.description = texts.last().toStdString();
    return !otherFolder.title.empty() && otherFolder.title.size() <= Limits::word &&
           otherFolder.description.size() <= Limits::word;
}

/// The properties that have been met.
struct Met {
    bool actions = false;
    bool scope = false;
    bool customFolders = false;
    bool showIcons = false;
    bool inSubmenu = false;

    [[nodiscard]] bool all() const { return actions && scope && customFolders && showIcons && inSubmenu; }
};

bool readEntries(const QDBusArgument& properties, MenuSettings& settings)
{
    Met met;
    const InMap map(properties);
    while (!properties.atEnd()) {
        const InMapEntry entry(properties);
        QString name;
        QDBusVariant held;
        properties >> name >> held;
        const QVariant value = held.variant();
        const auto is = [&](const char* property) { return name == QLatin1String(property); };
        if (is(Published::Actions::name) && !(met.actions = read(value, settings.actions)))
            return false;
        if (is(Published::Scope::name) && !(met.scope = read(value, settings.scope)))
            return false;
        if (is(Published::CustomFolders::name) && !(met.customFolders = read(value, settings.targets)))
            return false;
        // Older companions have none.
        if (is(Published::OtherFolder::name) && !read(value, settings.otherFolder))
            return false;
        if (is(Published::ShowMenuIcon::name) && !(met.showIcons = read(value, settings.showIcons)))
            return false;
        if (is(Published::ShowInSubmenu::name) && !(met.inSubmenu = read(value, settings.inSubmenu)))
            return false;
    }
    return met.all();
}

} // namespace

std::optional<MenuSettings> readProperties(const QDBusMessage& answer)
{
    const QVariantList arguments = answer.arguments();
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("a{sv}") ||
        arguments.size() != 1 || arguments.first().userType() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    std::optional<MenuSettings> settings(std::in_place);
    if (!readEntries(arguments.first().value<QDBusArgument>(), *settings))
        return std::nullopt;
    return settings;
}

} // namespace DolphinBridge
