#include "folders/MonitoredFolders.h"

#include "platform/FatalError.h"
#include "platform/Print.h"
#include "settings/SettingsKeys.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <variant>

namespace {

constexpr std::int64_t active = 1;
constexpr std::int64_t inactive = 0;

/// Every element of a stored array by `convert`; nothing where nothing is stored.
template<class T, class Convert>
std::optional<std::vector<T>> storedList(NS::UserDefaults& store, const std::string& key, Convert convert)
{
    if (!store.objectForKey(key))
        return std::nullopt;
    const auto array = store.arrayForKey(key);
    // Gone by now, when another program has just removed it.
    if (!array && !store.objectForKey(key))
        return std::nullopt;
    if (!array)
        NS::fatalError("the stored " + key + " is not an array");
    std::vector<T> list;
    list.reserve(array->size());
    for (const NS::Value& element : *array) {
        const auto converted = convert(element);
        if (!converted)
            NS::fatalError("the stored " + key + " has an element of the wrong kind");
        list.push_back(*converted);
    }
    return list;
}

} // namespace

MonitoredFolders::MonitoredFolders(MonitoredFolderServices services, std::shared_ptr<RunBookmarks> runBookmarks)
    : userdefaultskey(SettingsKey::foldersArray), userdefaultsstate(SettingsKey::foldersArraystate),
      m_services(std::move(services)), m_runBookmarks(std::move(runBookmarks))
{}

void MonitoredFolders::load(NS::UserDefaults* store)
{
    if (!store)
        return;
    if (auto paths =
            storedList<std::string>(*store, userdefaultskey, [](const NS::Value& value) { return value.string(); }))
        arrurl = std::move(*paths);
    if (auto flags = storedList<std::int64_t>(*store, userdefaultsstate,
                                              [](const NS::Value& value) { return value.integer(); }))
        arrstate = std::move(*flags);
}

MonitoredFolders::Added MonitoredFolders::add(const NS::URL& url)
{
    const std::string& path = url.path();
    const bool listed =
        std::ranges::any_of(arrurl, [&](const std::string& other) { return m_services.samePath(path, other); });
    if (listed)
        return Added::AlreadyPresent;
    arrurl.push_back(path);
    arrstate.push_back(active);
    const auto suite = m_services.openSuite();
    storeFolders(suite.get());
    keepBookmark(url, suite.get());
    publish();
    return Added::Yes;
}

void MonitoredFolders::keepBookmark(const NS::URL& url, NS::UserDefaults* suite)
{
    const NS::BookmarkData made = m_services.makeBookmark(url);
    if (const auto* error = std::get_if<NS::Error>(&made)) {
        NS::print(error->localizedDescription);
        NS::print("Error storing bookmarks");
        return;
    }
    const auto& bookmark = std::get<NS::Data>(made);
    if (std::ranges::find(*m_runBookmarks, bookmark) != m_runBookmarks->end())
        return;
    m_runBookmarks->push_back(bookmark);
    if (!suite)
        return;
    suite->setValue_forKeyPath(NS::Value::Array(m_runBookmarks->begin(), m_runBookmarks->end()),
                               SettingsKey::allBookmark);
    suite->synchronize();
}

void MonitoredFolders::removeAt(std::ptrdiff_t row)
{
    requireRow(row, arrurl.size());
    requireRow(row, arrstate.size());
    arrurl.erase(arrurl.begin() + row);
    arrstate.erase(arrstate.begin() + row);
    storeFolders(m_services.openSuite().get());
    publish();
}

void MonitoredFolders::toggleAt(std::ptrdiff_t row)
{
    requireRow(row, arrstate.size());
    std::int64_t& flag = arrstate[static_cast<std::size_t>(row)];
    flag = flag == active ? inactive : active;
}

void MonitoredFolders::storeFlags() const
{
    if (const auto suite = m_services.openSuite())
        storeFlags(*suite);
}

void MonitoredFolders::publish() const
{
    std::set<NS::URL> folders;
    for (const std::string& path : arrurl)
        folders.insert(NS::URL::fileURLWithPath(path));
    m_services.setDirectoryURLs(folders);
}

const std::string& MonitoredFolders::pathAt(std::ptrdiff_t row) const
{
    requireRow(row, arrurl.size());
    return arrurl[static_cast<std::size_t>(row)];
}

bool MonitoredFolders::isActiveAt(std::ptrdiff_t row) const
{
    requireRow(row, arrstate.size());
    return arrstate[static_cast<std::size_t>(row)] == active;
}

void MonitoredFolders::storeFolders(NS::UserDefaults* suite) const
{
    if (!suite)
        return;
    suite->setValue_forKeyPath(NS::Value::Array(arrurl.begin(), arrurl.end()), userdefaultskey);
    suite->synchronize();
    storeFlags(*suite);
}

void MonitoredFolders::storeFlags(NS::UserDefaults& suite) const
{
    suite.setValue_forKeyPath(NS::Value::Array(arrstate.begin(), arrstate.end()), userdefaultsstate);
    suite.synchronize();
}

void MonitoredFolders::requireRow(std::ptrdiff_t row, std::size_t rows) const
{
    if (row < 0 || static_cast<std::size_t>(row) >= rows)
        NS::fatalError("the folders have no row " + std::to_string(row));
}
