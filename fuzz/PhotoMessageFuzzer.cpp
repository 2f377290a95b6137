#include "extension/actions/photos/Message.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <sys/socket.h>

namespace {

using namespace MenuExtension::Photos;
using LinuxDesktop::FileDescriptor;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

/// The bytes are what a worker says before it is gone: what is taken for messages is what came, in order, and the
/// rest is the beginning of one or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // What a socket takes without anybody reading.
    constexpr std::size_t mostBytes = 65'536;
    std::array<int, 2> ends{};
    if (size > mostBytes || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return 0;
    const FileDescriptor own(ends[0]);
    {
        const FileDescriptor others(ends[1]);
        require(::send(others.get(), data, size, 0) == static_cast<ssize_t>(size));
    }
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    for (;;) {
        std::uint32_t length = 0;
        const bool hasHead = rest.size() >= sizeof(length);
        if (hasHead)
            std::memcpy(&length, rest.data(), sizeof(length));
        const Received received = receive(own.get(), Deadline::max());
        require(received.message.has_value() == (hasHead && rest.size() - sizeof(length) >= length));
        if (!received.message) {
            require(received.loss == Loss::Gone);
            return 0;
        }
        require(received.message->bytes == rest.substr(sizeof(length), length) && received.message->files.empty());
        rest.remove_prefix(sizeof(length) + length);
    }
}
