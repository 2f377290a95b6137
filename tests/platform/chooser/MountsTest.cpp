#include "platform/linux/chooser/Mounts.h"

#include "TemporaryFolder.h"

#include "platform/linux/chooser/FolderListing.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view table = "22 1 8:1 / / rw,relatime - ext4 /dev/sda1 rw\n"
                                   "23 22 0:5 / /proc rw - proc proc rw\n"
                                   "30 22 8:17 / /media/ada/My\\040Stick rw shared:9 - vfat /dev/sdb1 rw\n"
                                   "31 22 8:18 / /run/media/ada/Photos rw shared:9 master:1 - exfat /dev/sdc1 rw\n"
                                   "32 22 0:50 / /nas rw - nfs4 server:/export rw\n"
                                   "33 22 0:51 / /home/ada/Cloud rw - fuse.sshfs ada@host: rw\n"
                                   "34 22 0:52 / /home/ada/.cache/doc rw - fuse.portal portal rw\n"
                                   "35 22 0:53 / /net rw - autofs auto rw\n"
                                   "36 22 0:54 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
                                   "37 22 0:55 / /var/lib/data rw - ext4 /dev/sdd1 rw\n"
                                   "39 22 0:56 / /mnt/memory rw - tmpfs none rw\n"
                                   "38 22 8:33 / /home rw - nfs server:/home rw\n";

std::vector<std::string> foldersOf(const std::vector<Place>& places)
{
    std::vector<std::string> folders;
    folders.reserve(places.size());
    for (const Place& place : places)
        folders.push_back(place.folder);
    return folders;
}

} // namespace

TEST(Mounts, ThatAPersonKnowsAreVolumes)
{
    const std::vector<Place> volumes = volumesOf(mountsIn(table), "/home/ada");
    ASSERT_EQ(foldersOf(volumes),
              (std::vector<std::string>{"/media/ada/My Stick", "/run/media/ada/Photos", "/nas", "/home/ada/Cloud"}));
    EXPECT_EQ(volumes[0].title, u"My Stick"_s);
    EXPECT_EQ(volumes[0].icons.front(), u"drive-removable-media"_s);
    EXPECT_EQ(volumes[2].icons.front(), u"folder-remote"_s);
}

TEST(Mounts, OfATableThatMakesNoSenseAreNone)
{
    EXPECT_TRUE(mountsIn("").empty());
    EXPECT_TRUE(
        mountsIn("nonsense\n\n- - - -\n1 2 3 4 /a rw\n1 2 3 4 /a rw -\n1 2 3 4 relative rw - ext4 x y\n").empty());
    EXPECT_EQ(mountsIn("1 2 3 4 /a\\04 rw - ext4 x y\n").front().folder, "/a\\04");
}

TEST(Mounts, APathIsOnTheInnermost)
{
    const std::vector<Mount> mounts = mountsIn(table);
    const auto typeAt = [&](const std::string& path) {
        const Mount* share = networkShareOf(path, mounts);
        return share ? share->type : std::string();
    };
    EXPECT_EQ(typeAt("/nas"), "nfs4");
    EXPECT_EQ(typeAt("/nas/a/b"), "nfs4");
    EXPECT_EQ(typeAt("/nasty"), "");
    EXPECT_EQ(typeAt("/home/ada/a"), "nfs");
    EXPECT_EQ(typeAt("/home/ada/Cloud/a"), "fuse.sshfs");
    EXPECT_EQ(typeAt("/media/ada/My Stick/a"), "");
    EXPECT_EQ(typeAt("/"), "");
}

TEST(Mounts, OfSharesAndLinksToThemAreListedWithoutBeingLookedAt)
{
    const TemporaryFolder folder;
    folder.file("plain", 5);
    folder.file("share", 5);
    folder.link("link", folder.path("share"));
    folder.link("near", "./share");
    const auto sizes = [&](const std::vector<Mount>& mounts) {
        std::vector<std::pair<std::string, std::int64_t>> found;
        for (const FileEntry& entry : readFolder(folder.path(), HiddenFiles::Left, {}, mounts).entries)
            found.emplace_back(entry.name, entry.size);
        std::ranges::sort(found);
        return found;
    };
    EXPECT_EQ(sizes({}), (decltype(sizes({})){{"link", 5}, {"near", 5}, {"plain", 5}, {"share", 5}}));
    EXPECT_EQ(sizes({{folder.path("share"), "nfs4"}}),
              (decltype(sizes({})){{"link", 0}, {"near", 0}, {"plain", 5}, {"share", 0}}));
    // Within a share all are looked at: it has answered.
    EXPECT_EQ(sizes({{folder.path(), "nfs4"}}), sizes({}));
}
