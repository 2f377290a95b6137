#pragma once

#include "platform/linux/system/Command.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension::Exif {

/// What ExifTool may take for one run.
struct Limits {
    std::chrono::milliseconds time = std::chrono::seconds(60);
    /// Of address space.
    std::size_t memory = std::size_t{1} << 30U;
    std::size_t output = std::size_t{32} << 20U;
};

/// ExifTool as a process that is kept open, started with the first run, and again after one that it did not come back
/// from. One thread, with which the process ends, also where it is killed.
class ExifTool {
public:
    enum class End {
        Done,
        /// There is no such program.
        NotThere,
        TooLong,
        TooMuch,
        /// It ended, for the lack of memory for example.
        Crashed,
        Cancelled,
    };
    struct Answer {
        End end = End::Done;
        std::string output;
        /// Its warnings and errors, a line each.
        std::string complaints;
    };

    explicit ExifTool(Limits limits = {}) : m_limits(limits) {}
    ~ExifTool();
    ExifTool(const ExifTool&) = delete;
    ExifTool& operator=(const ExifTool&) = delete;

    /// Whether the program is there.
    [[nodiscard]] static bool isInstalled();

    /// Runs it with arguments that hold no line ends and begin neither with a space nor with '#'. Ends at once when
    /// it is asked to stop, which ends the process.
    [[nodiscard]] Answer run(const std::vector<std::string>& arguments, const std::stop_token& stop);

private:
    bool start();
    End exchange(std::string_view input, const std::string& mark, Answer& answer, const std::stop_token& stop);
    void kill();

    Limits m_limits;
    std::optional<LinuxDesktop::Command::Process> m_process;
    LinuxDesktop::FileDescriptor m_input;
    LinuxDesktop::FileDescriptor m_output;
    LinuxDesktop::FileDescriptor m_complaints;
    unsigned m_run = 0;
};

/// A value as ExifTool takes it with its option -E: any bytes, on one line.
[[nodiscard]] std::string escaped(std::string_view value);

} // namespace MenuExtension::Exif
