#include "platform/linux/chooser/FilePath.h"

#include "platform/linux/system/ParentFolder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace LinuxDesktop {

std::string normalizedPath(std::string_view path)
{
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    std::string normal = (error ? std::filesystem::path("/") / path : absolute).lexically_normal().native();
    if (normal.size() > 1 && normal.back() == '/')
        normal.pop_back();
    return normal;
}

std::string fileName(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string pathInFolder(const std::string& folder, std::string_view name)
{
    std::string path = folder;
    if (!path.ends_with('/'))
        path += '/';
    return path += name;
}

bool exists(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0;
}

bool isFolder(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

int lookupError(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 || errno == ENOENT || errno == ENOTDIR)
        return 0;
    return errno;
}

std::string nearestFolder(const std::string& path)
{
    std::string folder = path;
    while (folder != "/" && !isFolder(folder))
        folder = parentFolder(folder);
    return folder;
}

std::string homeFolder()
{
    // Qt's own answer has been through UTF-16, which loses bytes that are not UTF-8.
    const QByteArray home = qgetenv("HOME");
    return normalizedPath(home.startsWith('/') ? home.toStdString()
                                               : QFile::encodeName(QDir::homePath()).toStdString());
}

} // namespace LinuxDesktop
