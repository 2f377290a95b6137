#include "extension/actions/photos/Worker.h"

#include "extension/actions/photos/WorkerProgram.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <utility>
// This header forgets to say that its functions are C.
extern "C" {
#include <sys/pidfd.h>
}

namespace MenuExtension::Photos {

using LinuxDesktop::FileDescriptor;
namespace Command = LinuxDesktop::Command;

namespace {

void kill(const Command::Process& process)
{
    ::pidfd_send_signal(process.ended().get(), SIGKILL, nullptr, 0);
}

} // namespace

Worker::Worker(std::string program, Limits limits) : m_program(std::move(program)), m_limits(limits) {}

Worker::~Worker()
{
    end();
}

Answer Worker::ask(std::string_view job, std::span<const int> files, const std::stop_token& stop)
{
    Answer answer;
    if (!stop.stop_requested() && (m_running || start()))
        answer = talk(job, files, stop);
    else
        answer.fault = Fault::NotStarted;
    if (answer.fault && end() == endOfProcessorTime)
        answer.fault = Fault::TookTooLong;
    if (stop.stop_requested())
        answer = {.bytes = {}, .fault = Fault::Stopped};
    return answer;
}

Answer Worker::talk(std::string_view job, std::span<const int> files, const std::stop_token& stop)
{
    const Deadline deadline = std::chrono::steady_clock::now() + m_limits.patience;
    // The end of the process is what wakes this thread.
    const std::stop_callback onStop(stop, [this] { kill(m_running->process); });
    const int socket = m_running->socket.get();
    if (!m_running->isReady) {
        // What cannot be loaded ends without a word.
        const Received greeting = receive(socket, deadline);
        if (!greeting.message)
            return {.bytes = {}, .fault = greeting.loss == Loss::Late ? Fault::TookTooLong : Fault::NotStarted};
        m_running->isReady = true;
    }
    if (const Sent sent = send(socket, job, files, deadline); sent != Sent::Yes)
        return {.bytes = {}, .fault = sent == Sent::Late ? Fault::TookTooLong : Fault::Died};
    Received received = receive(socket, deadline);
    if (!received.message)
        return {.bytes = {}, .fault = received.loss == Loss::Late ? Fault::TookTooLong : Fault::Died};
    return {.bytes = std::move(received.message->bytes)};
}

bool Worker::start()
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return false;
    FileDescriptor own(ends[0]);
    const FileDescriptor others(ends[1]);
    auto process = Command::start(
        m_program, {m_program, std::to_string(m_limits.memory), std::to_string(m_limits.processor.count())},
        Command::environment(), {.input = others.get()});
    if (!process || !process->ended())
        return false;
    m_running.emplace(*std::move(process), std::move(own));
    return true;
}

std::optional<int> Worker::end()
{
    if (!m_running)
        return std::nullopt;
    kill(m_running->process);
    // A process that is killed may take a moment to let go of its memory.
    pollfd source{m_running->process.ended().get(), POLLIN, 0};
    while (::poll(&source, 1, -1) < 0 && errno == EINTR) {
    }
    const auto status = m_running->process.exitStatus();
    m_running.reset();
    return status;
}

std::string programBeside(std::string_view name)
{
    std::error_code error;
    return (std::filesystem::read_symlink("/proc/self/exe", error).parent_path() / name).native();
}

} // namespace MenuExtension::Photos
