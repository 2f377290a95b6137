#include "platform/linux/chooser/Bookmarks.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/PercentText.h"
#include "platform/linux/chooser/SmallFile.h"
#include "platform/linux/text/FileNameText.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t longestFile = std::size_t{256} << 10U;
/// More than a person looks through.
constexpr std::size_t mostBookmarks = 100;
constexpr qsizetype longestTitle = 100;

std::string bookmarksFile()
{
    const char* configuration = std::getenv("XDG_CONFIG_HOME");
    const bool isSet = configuration && *configuration == '/';
    return pathInFolder(isSet ? configuration : pathInFolder(homeFolder(), ".config"), "gtk-3.0/bookmarks");
}

/// An address and, after a space, the name that the user gave it.
std::optional<Place> bookmarkIn(std::string_view line)
{
    constexpr std::string_view scheme = "file://";
    if (!line.starts_with(scheme))
        return std::nullopt;
    line.remove_prefix(scheme.size());
    const std::size_t space = std::min(line.find(' '), line.size());
    const std::optional<std::string> folder = pathFromPercentEncoded(line.substr(0, space));
    if (!folder)
        return std::nullopt;
    QString title = fileNameText(line.substr(space)).trimmed();
    if (title.isEmpty())
        title = fileNameText(*folder == "/" ? *folder : fileName(*folder));
    title.truncate(longestTitle);
    return Place{title, {u"folder-bookmark"_s, u"folder-favorites"_s, u"folder"_s}, *folder};
}

} // namespace

std::vector<Place> bookmarks()
{
    return bookmarksIn(readSmallFile(bookmarksFile(), longestFile).value_or(""));
}

std::vector<Place> bookmarksIn(std::string_view text)
{
    std::vector<Place> found;
    while (!text.empty() && found.size() < mostBookmarks) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (std::optional<Place> bookmark = bookmarkIn(line))
            found.push_back(std::move(*bookmark));
    }
    return found;
}

} // namespace LinuxDesktop
