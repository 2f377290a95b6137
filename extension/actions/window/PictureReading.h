#pragma once

#include "platform/linux/system/Command.h"
#include "platform/linux/system/FileDescriptor.h"

#include <QImage>

#include <chrono>
#include <optional>
#include <stop_token>
#include <string>

namespace MenuExtension {

/// Reads the picture in a file by another program, within bounds: anything may be in the file, and take any time and
/// memory. Any thread.
class PictureReading {
public:
    /// How long it is worth waiting for.
    static constexpr std::chrono::seconds patience{10};
    static constexpr int mostPixels = 1024;

    /// Whether a file is a picture by its name.
    [[nodiscard]] static bool isPicture(const QString& name);

    /// Starts. The picture will have `pixels` the longer way, at most `mostPixels`.
    PictureReading(const std::string& path, int pixels);
    /// Ends the program, at once.
    ~PictureReading();
    PictureReading(const PictureReading&) = delete;
    PictureReading& operator=(const PictureReading&) = delete;

    /// A file that is readable once the program has ended; negative where it could not be started.
    [[nodiscard]] int ended() const;
    /// What a program that has ended has made of the file; null where that is no picture.
    [[nodiscard]] QImage picture();
    /// The same, when the program has ended; null after the patience, or a request to stop.
    [[nodiscard]] QImage wait(const std::stop_token& stop);

private:
    /// In memory, without a name.
    LinuxDesktop::FileDescriptor m_made;
    std::optional<LinuxDesktop::Command::Process> m_process;
};

} // namespace MenuExtension
