#include "extension/actions/find-duplicate-files/SystemPlaces.h"

#include "platform/linux/system/FileDescriptor.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>

using namespace MenuExtension;

TEST(SystemPlaces, AreTheSystemsOwnFoldersAndTheTrash)
{
    for (const char* path : {"/usr", "/etc", "/var", "/proc", "/home/a/lost+found", "/media/stick/.Trash-1000",
                             "/media/stick/.Trash", "/home/a/.local/share/Trash"}) {
        EXPECT_TRUE(isSystemFolder(path)) << path;
        EXPECT_TRUE(mayBeSystemFolder(std::string(path).substr(std::string(path).rfind('/') + 1))) << path;
    }
    for (const char* path : {"/home", "/home/a/usr", "/home/a/Trash", "/srv", "/media", "/home/a/etc", "/"})
        EXPECT_FALSE(isSystemFolder(path)) << path;
}

TEST(SystemPlaces, AreFilesThatFileManagersWrite)
{
    for (const char* name : {"Thumbs.db", ".DS_Store", "desktop.ini", "._photo.jpg", ".directory"})
        EXPECT_TRUE(isSystemFile(name)) << name;
    for (const char* name : {"thumbs.txt", ".profile", "_x", ".", "desktop.ini.txt"})
        EXPECT_FALSE(isSystemFile(name)) << name;
}

TEST(SystemPlaces, TheKernelsFileSystemsHoldNoFilesOfAnybody)
{
    const auto isKernels = [](const char* path) {
        const LinuxDesktop::FileDescriptor folder(::open(path, O_PATH | O_DIRECTORY | O_CLOEXEC));
        return isKernelFileSystem(folder.get());
    };
    EXPECT_TRUE(isKernels("/proc"));
    // A container may do without.
    EXPECT_EQ(isKernels("/sys"), std::filesystem::exists("/sys/kernel"));
    EXPECT_FALSE(isKernels("/tmp"));
    EXPECT_FALSE(isKernels("/"));
}
