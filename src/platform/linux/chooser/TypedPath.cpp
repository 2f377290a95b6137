#include "platform/linux/chooser/TypedPath.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/system/FolderStream.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <QStringList>

#include <sys/stat.h>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

bool isThere(const std::string& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

/// The name in the folder that reads like this text.
std::string nameThatReads(const QString& text, const std::string& folder)
{
    std::string bytes = text.toStdString();
    if (isThere(pathInFolder(folder, bytes)))
        return bytes;
    const FolderStream stream = openFolder(folder);
    while (const dirent* item = stream ? ::readdir(stream.get()) : nullptr) {
        if (fileNameText(item->d_name) == text)
            return item->d_name;
    }
    return bytes;
}

/// Goes on from the folder by the names in `rest`.
std::string follow(std::string folder, QStringView rest)
{
    for (const QStringView name : rest.split(u'/', Qt::SkipEmptyParts)) {
        if (name == u"..")
            folder = parentFolder(folder);
        else if (name != u".")
            folder = pathInFolder(folder, nameThatReads(name.toString(), folder));
    }
    return folder;
}

} // namespace

std::string pathFromTypedText(const QString& text, const std::string& folder)
{
    constexpr QStringView fileScheme = u"file://";
    if (text.startsWith(fileScheme))
        return normalizedPath(QByteArray::fromPercentEncoding(text.sliced(fileScheme.size()).toUtf8()).toStdString());
    if (text == u'~' || text.startsWith(u"~/"_s))
        return follow(homeFolder(), QStringView(text).sliced(1));

    // The shown folder's own text leads to it even where another folder has the same text.
    if (text == fileNameText(folder))
        return folder;
    const QString shown = fileNameText(pathInFolder(folder, {}));
    if (text.startsWith(shown))
        return follow(folder, QStringView(text).sliced(shown.size()));
    return follow(text.startsWith(u'/') ? "/" : folder, text);
}

} // namespace LinuxDesktop
