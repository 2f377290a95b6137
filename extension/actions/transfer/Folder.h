#pragma once

#include "extension/actions/transfer/SystemCalls.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace MenuExtension::Transfers {

/// Which item it is, whatever its name.
struct Identity {
    dev_t device = 0;
    ino_t file = 0;
    friend bool operator==(const Identity&, const Identity&) = default;
};

[[nodiscard]] inline Identity identityOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino};
}

/// So many files of several names are told apart, in some 50 MiB of memory. Each name of one beyond those is a file.
constexpr std::size_t mostSeveral = 200'000;

/// A folder that is open; its path is for what is said and noted about it.
struct Folder {
    LinuxDesktop::FileDescriptor descriptor;
    std::string path;
    Identity identity;
    std::uint64_t mount = 0;

    [[nodiscard]] int get() const { return descriptor.get(); }
    [[nodiscard]] std::string pathOf(const std::string& name) const { return (path == "/" ? "" : path) + '/' + name; }
};

/// Whether an item of the one can be renamed into the other.
[[nodiscard]] inline bool canRenameBetween(const Folder& one, const Folder& other)
{
    return one.identity.device == other.identity.device && one.mount == other.mount;
}

/// Several items share the one that they lie in.
using SharedFolder = std::shared_ptr<const Folder>;

/// Nothing, with errno, where there is no such folder.
[[nodiscard]] inline SharedFolder shareFolder(SystemCalls& calls, LinuxDesktop::FileDescriptor opened,
                                              std::string path)
{
    struct stat status = {};
    if (!opened || calls.status(opened.get(), "", status) != 0)
        return nullptr;
    const std::uint64_t mount = calls.mount(opened.get());
    return std::make_shared<const Folder>(Folder{std::move(opened), std::move(path), identityOf(status), mount});
}

} // namespace MenuExtension::Transfers
