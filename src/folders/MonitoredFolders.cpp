#include "folders/MonitoredFolders.h"

#include "platform/FatalError.h"
#include "platform/Platform.h"
#include "platform/Print.h"
#include "settings/Reading.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"

#include <algorithm>
#include <set>
#include <utility>
#include <variant>

namespace {

constexpr std::int64_t active = 1;
constexpr std::int64_t inactive = 0;

} // namespace

MonitoredFolders::MonitoredFolders(std::shared_ptr<RunBookmarks> runBookmarks)
    : userdefaultskey(Settings::foldersArray.key), userdefaultsstate(Settings::foldersArraystate.key),
      m_runBookmarks(std::move(runBookmarks))
{}

void MonitoredFolders::load(NS::UserDefaults* stored)
{
    if (!stored)
        return;
    if (auto paths = require(Settings::foldersArray, *stored, userdefaultskey))
        arrurl = *std::move(paths);
    if (auto flags = require(Settings::foldersArraystate, *stored, userdefaultsstate))
        arrstate = *std::move(flags);
}

MonitoredFolders::Added MonitoredFolders::add(const NS::URL& url)
{
    const std::string& path = url.path();
    const bool listed = std::ranges::any_of(
        arrurl, [&](const std::string& other) { return NS::platform().canonicallyEqual(path, other); });
    if (listed)
        return Added::AlreadyPresent;
    arrurl.push_back(path);
    arrstate.push_back(active);
    const auto suite = openSharedSuite();
    storeFolders(suite.get());
    keepBookmark(url, suite.get());
    publish();
    return Added::Yes;
}

void MonitoredFolders::keepBookmark(const NS::URL& url, NS::UserDefaults* suite)
{
    const NS::BookmarkData made = NS::platform().bookmarkDataWithOptions(url, NS::BookmarkCreationWithSecurityScope);
    if (const auto* error = std::get_if<NS::Error>(&made)) {
        NS::print(error->localizedDescription);
        NS::print("Error storing bookmarks");
        return;
    }
    const auto& bookmark = std::get<NS::Data>(made);
    if (std::ranges::find(*m_runBookmarks, bookmark) != m_runBookmarks->end())
        return;
    m_runBookmarks->push_back(bookmark);
    if (suite)
        store(*m_runBookmarks, *suite, Settings::allBookmark.key);
}

void MonitoredFolders::removeAt(std::ptrdiff_t row)
{
    requireRow(row, arrurl.size(), userdefaultskey);
    requireRow(row, arrstate.size(), userdefaultsstate);
    arrurl.erase(arrurl.begin() + row);
    arrstate.erase(arrstate.begin() + row);
    storeFolders(openSharedSuite().get());
    publish();
}

void MonitoredFolders::toggleAt(std::ptrdiff_t row)
{
    requireRow(row, arrstate.size(), userdefaultsstate);
    std::int64_t& flag = arrstate[static_cast<std::size_t>(row)];
    flag = flag == active ? inactive : active;
}

void MonitoredFolders::storeFlags() const
{
    if (const auto suite = openSharedSuite())
        store(arrstate, *suite, userdefaultsstate);
}

void MonitoredFolders::publish() const
{
    std::set<NS::URL> folders;
    for (const std::string& path : arrurl)
        folders.insert(NS::URL::fileURLWithPath(path));
    NS::platform().defaultController().setDirectoryURLs(folders);
}

const std::string& MonitoredFolders::pathAt(std::ptrdiff_t row) const
{
    requireRow(row, arrurl.size(), userdefaultskey);
    return arrurl[static_cast<std::size_t>(row)];
}

bool MonitoredFolders::isActiveAt(std::ptrdiff_t row) const
{
    requireRow(row, arrstate.size(), userdefaultsstate);
    return arrstate[static_cast<std::size_t>(row)] == active;
}

void MonitoredFolders::storeFolders(NS::UserDefaults* suite) const
{
    if (!suite)
        return;
    store(arrurl, *suite, userdefaultskey);
    store(arrstate, *suite, userdefaultsstate);
}

void MonitoredFolders::requireRow(std::ptrdiff_t row, std::size_t rows, std::string_view key)
{
    if (row < 0 || static_cast<std::size_t>(row) >= rows)
        NS::fatalError(std::string(key) + " has no row " + std::to_string(row));
}
