#include "extension/actions/photos/Message.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace MenuExtension::Photos {

using LinuxDesktop::FileDescriptor;

namespace {

/// A message begins with the number of its bytes, as both ends have it in memory.
using Length = std::uint32_t;

/// Whether the socket can do what `events` says before the deadline; one that is gone can, and says so then.
bool isReady(int socket, short events, Deadline deadline)
{
    using namespace std::chrono;
    for (;;) {
        int timeout = -1;
        if (deadline != Deadline::max()) {
            constexpr std::int64_t longestWait = 3'600'000;
            const auto left = ceil<milliseconds>(deadline - steady_clock::now()).count();
            if (left <= 0)
                return false;
            timeout = static_cast<int>(std::min<std::int64_t>(left, longestWait));
        }
        pollfd source{socket, events, 0};
        const int count = ::poll(&source, 1, timeout);
        if (count > 0)
            return true;
        if (count < 0 && errno != EINTR)
            return true;
    }
}

/// Room for the files of a message, aligned as the system wants it.
struct Control {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(mostFiles * sizeof(int))> bytes{};
};

Sent sendPart(int socket, std::string_view& rest, std::span<const int> files, Deadline deadline)
{
    if (!isReady(socket, POLLOUT, deadline))
        return Sent::Late;
    iovec part{const_cast<char*>(rest.data()), rest.size()};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    Control control;
    if (!files.empty()) {
        header.msg_control = control.bytes.data();
        header.msg_controllen = CMSG_SPACE(files.size_bytes());
        cmsghdr* const attached = CMSG_FIRSTHDR(&header);
        attached->cmsg_level = SOL_SOCKET;
        attached->cmsg_type = SCM_RIGHTS;
        attached->cmsg_len = CMSG_LEN(files.size_bytes());
        std::memcpy(CMSG_DATA(attached), files.data(), files.size_bytes());
    }
    const ssize_t count = ::sendmsg(socket, &header, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count < 0)
        return errno == EAGAIN || errno == EINTR ? Sent::Yes : Sent::No;
    rest.remove_prefix(static_cast<std::size_t>(count));
    return Sent::Yes;
}

void takeFiles(msghdr& header, std::vector<FileDescriptor>& files)
{
    for (cmsghdr* attached = CMSG_FIRSTHDR(&header); attached; attached = CMSG_NXTHDR(&header, attached)) {
        if (attached->cmsg_level != SOL_SOCKET || attached->cmsg_type != SCM_RIGHTS)
            continue;
        std::array<int, mostFiles> descriptors{};
        const std::size_t size = std::min(attached->cmsg_len - CMSG_LEN(0), sizeof(descriptors));
        std::memcpy(descriptors.data(), CMSG_DATA(attached), size);
        for (std::size_t index = 0; index < size / sizeof(int); ++index)
            files.emplace_back(descriptors.at(index));
    }
}

/// Fills the buffer; false, with the reason in `loss`, where that much does not come.
bool receiveAll(int socket, std::span<char> buffer, std::vector<FileDescriptor>& files, Deadline deadline, Loss& loss)
{
    while (!buffer.empty()) {
        if (!isReady(socket, POLLIN, deadline)) {
            loss = Loss::Late;
            return false;
        }
        iovec part{buffer.data(), buffer.size()};
        Control control;
        msghdr header{};
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = control.bytes.data();
        header.msg_controllen = control.bytes.size();
        const ssize_t count = ::recvmsg(socket, &header, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (count > 0)
            takeFiles(header, files);
        if (count <= 0 || files.size() > mostFiles) {
            loss = Loss::Gone;
            return false;
        }
        buffer = buffer.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

Sent send(int socket, std::string_view bytes, std::span<const int> files, Deadline deadline)
{
    if (bytes.size() > longestMessage || files.size() > mostFiles)
        return Sent::No;
    const auto length = static_cast<Length>(bytes.size());
    std::array<char, sizeof(length)> head{};
    std::memcpy(head.data(), &length, sizeof(length));
    std::string_view rest(head.data(), head.size());
    while (!rest.empty()) {
        // The files come with the first byte that is taken.
        const bool isFirst = rest.size() == head.size();
        if (const Sent sent = sendPart(socket, rest, isFirst ? files : std::span<const int>(), deadline);
            sent != Sent::Yes)
            return sent;
    }
    while (!bytes.empty()) {
        if (const Sent sent = sendPart(socket, bytes, {}, deadline); sent != Sent::Yes)
            return sent;
    }
    return Sent::Yes;
}

Received receive(int socket, Deadline deadline)
{
    Received received;
    Message message;
    std::array<char, sizeof(Length)> head{};
    if (!receiveAll(socket, head, message.files, deadline, received.loss))
        return received;
    Length length = 0;
    std::memcpy(&length, head.data(), sizeof(length));
    if (length > longestMessage)
        return received;
    message.bytes.resize(length);
    if (receiveAll(socket, message.bytes, message.files, deadline, received.loss))
        received.message = std::move(message);
    return received;
}

} // namespace MenuExtension::Photos
