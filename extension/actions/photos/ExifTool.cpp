#include "ExifTool.h"

#include "platform/linux/system/Pipe.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace MenuExtension::Exif {

using namespace LinuxDesktop;

namespace {

constexpr const char* program = "exiftool";
/// How soon a wish to stop is seen.
constexpr std::chrono::milliseconds glance{50};

/// What there is. False at the end.
bool readSome(const FileDescriptor& source, std::string& text)
{
    std::array<char, std::size_t{64} << 10U> buffer{};
    const ssize_t count = ::read(source.get(), buffer.data(), buffer.size());
    if (count > 0)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

} // namespace

bool ExifTool::isInstalled()
{
    return Command::find(program).has_value();
}

ExifTool::~ExifTool()
{
    kill();
}

bool ExifTool::start()
{
    const auto path = Command::find(program);
    Pipe input = makePipe();
    Pipe output = makePipe();
    Pipe complaints = makePipe();
    if (!path || !input.writing || !output.reading || !complaints.reading)
        return false;
    // Without what the user has added to the program, which could change what is read here.
    std::vector<std::string> command{*path, "-config", "", "-stay_open", "True", "-@", "-"};
    // Where this program is killed it would wait for more to do for ever.
    const auto endsWithParent = Command::find("setpriv");
    if (endsWithParent)
        command.insert(command.begin(), {"setpriv", "--pdeathsig", "KILL"});
    m_process = Command::start(
        endsWithParent.value_or(*path), std::move(command), Command::environment(),
        {.input = input.reading.get(), .output = output.writing.get(), .complaints = complaints.writing.get()});
    if (!m_process)
        return false;
    m_process->limit(RLIMIT_AS, m_limits.memory);
    m_input = std::move(input.writing);
    m_output = std::move(output.reading);
    m_complaints = std::move(complaints.reading);
    for (const FileDescriptor* end : {&m_input, &m_output, &m_complaints})
        ::fcntl(end->get(), F_SETFL, O_NONBLOCK);
    return true;
}

void ExifTool::kill()
{
    if (m_process)
        m_process->kill();
    m_process.reset();
    m_input = {};
    m_output = {};
    m_complaints = {};
}

ExifTool::Answer ExifTool::run(const std::vector<std::string>& arguments, const std::stop_token& stop)
{
    Answer answer;
    if (!m_process && !start()) {
        answer.end = End::NotThere;
        return answer;
    }
    const std::string number = std::to_string(++m_run);
    const std::string mark = "{ready" + number + "}\n";
    std::string input;
    for (const std::string& argument : arguments)
        input.append(argument).push_back('\n');
    // The same mark ends both outputs.
    input += "-echo4\n{ready" + number + "}\n-execute" + number + '\n';
    answer.end = exchange(input, mark, answer, stop);
    if (answer.end != End::Done)
        kill();
    return answer;
}

ExifTool::End ExifTool::exchange(std::string_view input, const std::string& mark, Answer& answer,
                                 const std::stop_token& stop)
{
    const auto deadline = std::chrono::steady_clock::now() + m_limits.time;
    for (;;) {
        const bool isSaid = answer.output.ends_with(mark);
        const bool isComplained = answer.complaints.ends_with(mark);
        if (isSaid && isComplained) {
            answer.output.resize(answer.output.size() - mark.size());
            answer.complaints.resize(answer.complaints.size() - mark.size());
            return End::Done;
        }
        if (stop.stop_requested())
            return End::Cancelled;
        if (std::chrono::steady_clock::now() >= deadline)
            return End::TooLong;
        if (answer.output.size() + answer.complaints.size() > m_limits.output)
            return End::TooMuch;
        std::array<pollfd, 3> sources{{{m_output.get(), POLLIN, 0},
                                       {m_complaints.get(), POLLIN, 0},
                                       {input.empty() ? -1 : m_input.get(), POLLOUT, 0}}};
        ::poll(sources.data(), sources.size(), static_cast<int>(glance.count()));
        if (sources[0].revents != 0 && !readSome(m_output, answer.output))
            return End::Crashed;
        if (sources[1].revents != 0 && !readSome(m_complaints, answer.complaints))
            return End::Crashed;
        if (sources[2].revents != 0) {
            const ssize_t count = ::write(m_input.get(), input.data(), input.size());
            if (count < 0 && errno != EAGAIN && errno != EINTR)
                return End::Crashed;
            input.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        }
    }
}

std::string escaped(std::string_view value)
{
    std::string text;
    for (const char byte : value) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isPlain = code >= 0x80 || (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') ||
                             (code >= 'a' && code <= 'z');
        if (isPlain)
            text += byte;
        else
            text += "&#" + std::to_string(code) + ';';
    }
    return text;
}

} // namespace MenuExtension::Exif
