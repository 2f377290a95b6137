#include "extension/bridges/dolphin/Properties.h"

#include "platform/linux/bus/interfaces/FinderSyncExtension.h"

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

using namespace BusInterface::FinderSyncExtension;
using MenuExtension::Folder;
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

/// Reads text as long as there may be more of it.
class Reader {
public:
    std::string text(const QDBusArgument& argument)
    {
        QString text;
        argument >> text;
        std::string bytes = text.toStdString();
        m_read += bytes.size();
        return bytes;
    }

    [[nodiscard]] bool isWithinLimits() const { return m_read <= Limits::text; }

private:
    std::size_t m_read = 0;
};

bool isShort(const MenuAction& action)
{
    return action.identifier.size() <= Limits::word && action.title.size() <= Limits::word &&
           action.icon.size() <= Limits::word;
}

bool read(const QDBusArgument& list, Reader& reader, std::vector<MenuAction>& actions)
{
    const InArray array(list);
    while (!list.atEnd()) {
        const InStructure structure(list);
        MenuAction action;
        action.identifier = reader.text(list);
        action.title = reader.text(list);
        action.icon = reader.text(list);
        list >> action.appliesTo;
        if (actions.size() == Limits::actions || !reader.isWithinLimits() || !isShort(action))
            return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool read(const QDBusArgument& list, Reader& reader, std::vector<Folder>& folders)
{
    const InArray array(list);
    while (!list.atEnd()) {
        const InStructure structure(list);
        Folder folder;
        folder.path = reader.text(list);
        list >> folder.active;
        if (folders.size() == Limits::folders || !reader.isWithinLimits())
            return false;
        folders.push_back(std::move(folder));
    }
    return true;
}

/// A value that is read later holds its type itself.
template<class Element>
bool read(const QVariant& value, const char* type, Reader& reader, std::vector<Element>& elements)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return false;
    const auto list = value.value<QDBusArgument>();
    elements.clear();
    return list.currentSignature() == QLatin1String(type) && read(list, reader, elements);
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

/// The properties that have been met.
struct Met {
    bool actions = false;
    bool folders = false;
    bool customFolders = false;
    bool showIcons = false;
    bool inSubmenu = false;

    [[nodiscard]] bool all() const { return actions && folders && customFolders && showIcons && inSubmenu; }
};

bool readEntries(const QDBusArgument& properties, MenuSettings& settings, std::vector<Folder>& folders)
{
    Met met;
    Reader reader;
    const InMap map(properties);
    while (!properties.atEnd()) {
        const InMapEntry entry(properties);
        QString name;
        QDBusVariant held;
        properties >> name >> held;
        const QVariant value = held.variant();
        const auto is = [&](const char* property) { return name == QLatin1String(property); };
        if (is(Actions::name) && !(met.actions = read(value, Actions::type, reader, settings.actions)))
            return false;
        if (is(Folders::name) && !(met.folders = read(value, Folders::type, reader, folders)))
            return false;
        if (is(CustomFolders::name) && !(met.customFolders = read(value, settings.targets)))
            return false;
        if (is(ShowMenuIcon::name) && !(met.showIcons = read(value, settings.showIcons)))
            return false;
        if (is(ShowInSubmenu::name) && !(met.inSubmenu = read(value, settings.inSubmenu)))
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
    std::vector<Folder> folders;
    if (!readEntries(arguments.first().value<QDBusArgument>(), *settings, folders))
        return std::nullopt;
    settings->scope = MenuExtension::Scope(folders);
    return settings;
}

} // namespace DolphinBridge
