#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <optional>
#include <string>

namespace MenuExtension {

/// A folder's `.hidden`, by the folder open for reading. Failures leave errno.
class HiddenFolder {
public:
    static constexpr const char* listName = ".hidden";

    explicit HiddenFolder(const LinuxDesktop::FileDescriptor& folder) : m_folder(folder) {}

    /// Its text, empty where there is none; nothing where it cannot be read, is no ordinary file, or is larger than
    /// any such list.
    [[nodiscard]] std::optional<std::string> read() const;
    /// Puts another in its place in one step, with the rights of the one before, or removes it where the text is
    /// empty. For who holds the folder's lock. False where it failed, and the one before is whole.
    [[nodiscard]] bool replace(const std::string& text) const;

private:
    const LinuxDesktop::FileDescriptor& m_folder;
};

} // namespace MenuExtension
