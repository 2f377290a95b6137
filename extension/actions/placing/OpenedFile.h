#pragma once

#include "extension/actions/support/Request.h"
#include "platform/linux/system/FileStamp.h"

#include <optional>
#include <string>

namespace MenuExtension {

/// A file, open for reading, and where it lies: where a link at its path leads to.
struct OpenedFile {
    LinuxDesktop::FileDescriptor file;
    /// To reach what lies in there.
    LinuxDesktop::FileDescriptor folder;
    std::string name;
    /// As it was opened.
    LinuxDesktop::FileStamp stamp;

    /// Whether the file is still in its place, as it was opened.
    [[nodiscard]] bool isUnchanged() const;
};

/// Opens an ordinary file that lies where the actions may work. Nothing, with errno.
[[nodiscard]] std::optional<OpenedFile> openWithFolder(const Request& request, const std::string& path);

/// The end of a name that says what kind of file it is, without its dot: letters and digits, or nothing.
[[nodiscard]] std::string extensionOf(std::string_view name);

} // namespace MenuExtension
