#pragma once

#include "extension/actions/photos/Message.h"
#include "platform/linux/system/Command.h"
#include "platform/linux/system/FileDescriptor.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>

namespace MenuExtension::Photos {

/// What a worker may use.
struct Limits {
    /// Of addresses, in bytes.
    std::uint64_t memory = std::uint64_t{2} << 30U;
    /// Of a processor, for one job.
    std::chrono::seconds processor{30};
    /// From the question to the answer.
    std::chrono::seconds patience{90};
};

/// Why there is no answer.
enum class Fault {
    /// The worker cannot be started, as when a library that it needs is missing.
    NotStarted,
    TookTooLong,
    /// It has died over the job: of the memory that it may use, or of what is wrong with the file.
    Died,
    /// A stop was requested.
    Stopped,
};

struct Answer {
    /// Meaningful where there is no fault.
    std::string bytes;
    std::optional<Fault> fault = {};
};

/// A process that does jobs one after the other, and may be brought down by any of them: the next starts another.
/// One thread at a time.
class Worker {
public:
    /// `program` is the path of one that calls runWorker().
    Worker(std::string program, Limits limits);
    /// Ends the process, at once.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// Waits for the job to be done. `files` are open files for the worker, which stay the caller's too. A stop
    /// ends the process, and with it the waiting.
    [[nodiscard]] Answer ask(std::string_view job, std::span<const int> files, const std::stop_token& stop);

private:
    struct Running {
        Running(LinuxDesktop::Command::Process started, LinuxDesktop::FileDescriptor end)
            : process(std::move(started)), socket(std::move(end))
        {}

        LinuxDesktop::Command::Process process;
        LinuxDesktop::FileDescriptor socket;
        bool isReady = false;
    };

    bool start();
    Answer talk(std::string_view job, std::span<const int> files, const std::stop_token& stop);
    /// The exit status, where the process has ended by itself.
    std::optional<int> end();

    std::string m_program;
    Limits m_limits;
    std::optional<Running> m_running;
};

/// The path of a program that lies beside the one that runs.
[[nodiscard]] std::string programBeside(std::string_view name);

} // namespace MenuExtension::Photos
