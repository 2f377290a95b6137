#include "platform/linux/chooser/Mounts.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/SmallFile.h"
#include "platform/linux/text/FileNameText.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>

namespace LinuxDesktop {

using namespace Qt::StringLiterals;

namespace {

/// Room for tens of thousands of mounts.
constexpr std::size_t longestTable = std::size_t{8} << 20U;

/// Spaces and the like are a backslash and three octal digits.
std::string unescaped(std::string_view text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '7'; };
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 3 < text.size() && std::ranges::all_of(text.substr(at + 1, 3), isDigit)) {
            plain += static_cast<char>((text[at + 1] - '0') * 64 + (text[at + 2] - '0') * 8 + (text[at + 3] - '0'));
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

bool liesIn(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) &&
           (path.size() == folder.size() || folder.ends_with('/') || path[folder.size()] == '/');
}

bool isShown(const Mount& mount, const std::string& home)
{
    // One is not mounted yet, the other a place of the desktop's own.
    constexpr std::array<std::string_view, 2> hidden = {"autofs", "fuse.gvfsd-fuse"};
    if (std::ranges::find(hidden, mount.type) != hidden.end() || mount.folder == "/" || liesIn(home, mount.folder) ||
        mount.folder.find("/.") != std::string::npos)
        return false;
    constexpr std::array<std::string_view, 3> places = {"/media", "/run/media", "/mnt"};
    // Memory is no disk, but where a person has put it into the home.
    const bool isMemory = mount.type == "tmpfs" || mount.type == "ramfs";
    return mount.isNetwork() || liesIn(mount.folder, home) ||
           (!isMemory &&
            std::ranges::any_of(places, [&](std::string_view place) { return liesIn(mount.folder, place); }));
}

QStringList iconsOf(const Mount& mount)
{
    if (mount.isNetwork())
        return {u"folder-remote"_s, u"folder-network"_s, u"network-server"_s, u"folder"_s};
    if (mount.type == "iso9660" || mount.type == "udf")
        return {u"media-optical"_s, u"drive-optical"_s, u"drive-harddisk"_s};
    if (liesIn(mount.folder, "/media") || liesIn(mount.folder, "/run/media"))
        return {u"drive-removable-media"_s, u"drive-harddisk"_s};
    return {u"drive-harddisk"_s};
}

} // namespace

bool Mount::isNetwork() const
{
    constexpr std::array<std::string_view, 18> types = {"9p",
                                                        "afs",
                                                        "ceph",
                                                        "cifs",
                                                        "davfs",
                                                        "fuse.curlftpfs",
                                                        "fuse.glusterfs",
                                                        "fuse.gvfsd-fuse",
                                                        "fuse.rclone",
                                                        "fuse.s3fs",
                                                        "fuse.sshfs",
                                                        "lustre",
                                                        "ncpfs",
                                                        "nfs",
                                                        "nfs4",
                                                        "orangefs",
                                                        "smb3",
                                                        "smbfs"};
    return std::ranges::find(types, type) != types.end();
}

std::vector<Mount> mounts()
{
    return mountsIn(readSmallFile("/proc/self/mountinfo", longestTable).value_or(""));
}

std::vector<Mount> mountsIn(std::string_view mountinfo)
{
    std::vector<Mount> found;
    std::istringstream lines{std::string(mountinfo)};
    for (std::string line; std::getline(lines, line);) {
        // ID, parent, device, root, mount point, options, any number of further fields, "-", type, source, options.
        std::istringstream words(line);
        const std::vector<std::string> fields(std::istream_iterator<std::string>(words), {});
        const auto dash = std::ranges::find(fields, "-");
        if (fields.size() < 6 || dash - fields.begin() < 6 || fields.end() - dash < 2)
            continue;
        if (std::string folder = unescaped(fields[4]); folder.starts_with('/'))
            found.push_back({std::move(folder), dash[1]});
    }
    return found;
}

std::vector<Place> volumesOf(const std::vector<Mount>& mounts, const std::string& home)
{
    std::vector<Place> volumes;
    for (const Mount& mount : mounts) {
        if (isShown(mount, home))
            volumes.push_back({fileNameText(fileName(mount.folder)), iconsOf(mount), mount.folder});
    }
    return volumes;
}

const Mount* networkShareOf(const std::string& path, const std::vector<Mount>& mounts)
{
    const Mount* innermost = nullptr;
    for (const Mount& mount : mounts) {
        if (liesIn(path, mount.folder) && (!innermost || mount.folder.size() >= innermost->folder.size()))
            innermost = &mount;
    }
    return innermost && innermost->isNetwork() ? innermost : nullptr;
}

} // namespace LinuxDesktop
