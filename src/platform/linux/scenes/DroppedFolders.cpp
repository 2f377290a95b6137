#include "platform/linux/scenes/DroppedFolders.h"

#include "platform/linux/text/FileNameText.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <filesystem>
#include <optional>
#include <system_error>

namespace LinuxDesktop {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(LinuxDesktop::DroppedFolders)
};

/// The path of a file of this computer, byte for byte; nothing where the address is another.
std::optional<std::string> localPath(QByteArray address)
{
    constexpr qsizetype schemeLength = 5;
    if (address.left(schemeLength).toLower() != "file:")
        return std::nullopt;
    address.remove(0, schemeLength);
    if (address.startsWith("//")) {
        address.remove(0, 2);
        const QByteArray host = address.left(address.indexOf('/'));
        if (!host.isEmpty() && host != "localhost" && host != QSysInfo::machineHostName().toUtf8())
            return std::nullopt;
        address.remove(0, host.size());
    }
    const std::string path = QByteArray::fromPercentEncoding(address).toStdString();
    if (!path.starts_with('/') || path.find('\0') != std::string::npos)
        return std::nullopt;
    return std::filesystem::path(path).lexically_normal().string();
}

/// Why the item at a path of this computer cannot be used; empty when it can.
QString refusalOf(const std::string& path, const PathRefusal& refusal)
{
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(path, failure);
    const QString name = fileNameText(path);
    if (status.type() == std::filesystem::file_type::not_found)
        return Words::tr("“%1” cannot be found.").arg(name);
    if (status.type() == std::filesystem::file_type::none)
        return Words::tr("“%1” cannot be added: %2.").arg(name, QString::fromStdString(failure.message()));
    if (status.type() != std::filesystem::file_type::directory)
        return Words::tr("“%1” cannot be added: it is not a folder.").arg(name);
    return refusal ? refusal(path) : QString();
}

} // namespace

DroppedFolders droppedFolders(const QByteArray& addresses, const PathRefusal& refusal)
{
    DroppedFolders dropped;
    for (const QByteArray& line : addresses.split('\n')) {
        const QByteArray address = line.trimmed();
        // Lines that begin so are remarks.
        if (address.isEmpty() || address.startsWith('#'))
            continue;
        const std::optional<std::string> path = localPath(address);
        const QString refused = path ? refusalOf(*path, refusal)
                                     : Words::tr("“%1” cannot be added: it is not a folder of this computer.")
                                           .arg(fileNameText(address.toStdString()));
        if (refused.isEmpty())
            dropped.folders.push_back(NS::URL::fileURLWithPath(*path));
        else
            dropped.refusals.append(refused);
    }
    return dropped;
}

} // namespace LinuxDesktop
