#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a program and its workers say to each other over a stream socket: bytes, and open files with them. Any
/// thread, one at an end.
namespace MenuExtension::Photos {

/// The most bytes and files that a message has.
inline constexpr std::size_t longestMessage = std::size_t{32} << 20U;
inline constexpr std::size_t mostFiles = 4;

struct Message {
    std::string bytes;
    std::vector<LinuxDesktop::FileDescriptor> files;
};

using Deadline = std::chrono::steady_clock::time_point;

enum class Sent { Yes, Late, No };
/// Sends a message, which is whole when the other end has received it. The files stay the caller's.
[[nodiscard]] Sent send(int socket, std::string_view bytes, std::span<const int> files, Deadline deadline);

enum class Loss {
    /// It has not come in time.
    Late,
    /// The other end is gone, or what it says is no message.
    Gone,
};
struct Received {
    std::optional<Message> message;
    Loss loss = Loss::Gone;
};
/// Waits for the next message.
[[nodiscard]] Received receive(int socket, Deadline deadline);

} // namespace MenuExtension::Photos
