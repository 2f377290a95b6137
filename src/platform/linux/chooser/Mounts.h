#pragma once

#include "platform/linux/chooser/Place.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LinuxDesktop {

/// A file system that is mounted on a folder, by what the kernel says of it: the file system itself is not asked,
/// since a network share whose server is gone would not answer.
struct Mount {
    std::string folder; // absolute, in bytes
    std::string type;   // as in "ext4" and "nfs4"

    [[nodiscard]] bool isNetwork() const;
};

/// Every mount that this process sees. Any thread.
[[nodiscard]] std::vector<Mount> mounts();
/// Those in the text of a "mountinfo" file.
[[nodiscard]] std::vector<Mount> mountsIn(std::string_view mountinfo);

/// The mounts that a person knows as disks, sticks and shares.
[[nodiscard]] std::vector<Place> volumesOf(const std::vector<Mount>& mounts, const std::string& home);

/// The network share that the path is on, by its text alone.
[[nodiscard]] const Mount* networkShareOf(const std::string& path, const std::vector<Mount>& mounts);

} // namespace LinuxDesktop
