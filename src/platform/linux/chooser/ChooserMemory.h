#pragma once

#include <QSize>

#include <string>

namespace LinuxDesktop {

/// What a chooser knows of the one before it. It is kept in a file of the user's state, which nothing depends on: one
/// that cannot be read or makes no sense is as none, and one that cannot be written stays as it is. Any thread.
struct ChooserMemory {
    /// The folder that was chosen from last, in bytes; empty where there is none. It may have gone.
    std::string folder;
    /// The window's size; invalid where there is none.
    QSize size;

    [[nodiscard]] static ChooserMemory recall();
    void keep() const;

    friend bool operator==(const ChooserMemory&, const ChooserMemory&) = default;
};

} // namespace LinuxDesktop
