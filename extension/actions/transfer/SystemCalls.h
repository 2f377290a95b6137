#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/vfs.h>

namespace MenuExtension::Transfers {

/// The calls that moving and copying make, in one place so that a test can make each of them fail. They answer as the
/// system's do, with errno, and begin anew where a signal interrupts them. A folder is an open one, and a name is
/// looked up in it and never followed where it is a link; an empty name is the folder itself. Any thread.
class SystemCalls {
public:
    SystemCalls() = default;
    virtual ~SystemCalls() = default;
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    /// Close-on-exec, without waiting for the other end of a pipe, and without becoming a terminal's process.
    [[nodiscard]] virtual LinuxDesktop::FileDescriptor open(int folder, const char* name, int flags, mode_t mode = 0);
    [[nodiscard]] virtual int status(int folder, const char* name, struct stat& status);
    [[nodiscard]] virtual int fileSystem(int file, struct statfs& status);
    /// Which mount an open item was reached by: one file system may have several, between which nothing can be
    /// renamed. 0 where the system does not tell.
    [[nodiscard]] virtual std::uint64_t mount(int file);
    /// The next entry of a folder; null at its end, and with errno where it cannot be read.
    [[nodiscard]] virtual const dirent* nextEntry(DIR* folder);

    [[nodiscard]] virtual ssize_t read(int file, void* bytes, std::size_t count, off_t at);
    [[nodiscard]] virtual ssize_t write(int file, const void* bytes, std::size_t count, off_t at);
    /// Within the system, at the same place of both files.
    [[nodiscard]] virtual ssize_t copyRange(int from, int to, off_t at, std::size_t count);
    /// The whole file, its bytes shared until one of the two is changed.
    [[nodiscard]] virtual int clone(int from, int to);
    [[nodiscard]] virtual off_t seek(int file, off_t at, int whence);
    [[nodiscard]] virtual int setLength(int file, off_t length);

    [[nodiscard]] virtual int makeFolder(int folder, const char* name, mode_t mode);
    [[nodiscard]] virtual int makeNode(int folder, const char* name, mode_t mode);
    [[nodiscard]] virtual int makeSymbolicLink(const char* destination, int folder, const char* name);
    [[nodiscard]] virtual ssize_t readSymbolicLink(int folder, const char* name, char* destination, std::size_t size);
    [[nodiscard]] virtual int link(int from, const char* name, int to, const char* newName);
    [[nodiscard]] virtual int rename(int from, const char* name, int to, const char* newName, unsigned flags);
    /// `flags` as of unlinkat().
    [[nodiscard]] virtual int remove(int folder, const char* name, int flags);

    [[nodiscard]] virtual int setOwner(int folder, const char* name, uid_t user, gid_t group);
    [[nodiscard]] virtual int setMode(int folder, const char* name, mode_t mode);
    [[nodiscard]] virtual int setTimes(int folder, const char* name, const std::array<timespec, 2>& times);
    [[nodiscard]] virtual ssize_t listAttributes(int file, char* names, std::size_t size);
    [[nodiscard]] virtual ssize_t attribute(int file, const char* name, void* value, std::size_t size);
    [[nodiscard]] virtual int setAttribute(int file, const char* name, const void* value, std::size_t size);
    [[nodiscard]] virtual int removeAttribute(int file, const char* name);

    /// A file or a folder. A file system that has no such operation for folders counts as having done it.
    [[nodiscard]] virtual int flush(int file);
    /// Everything of the file system that the file is in.
    [[nodiscard]] virtual int flushFileSystem(int file);
};

} // namespace MenuExtension::Transfers
