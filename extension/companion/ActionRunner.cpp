#include "extension/companion/ActionRunner.h"

#include "platform/LocalizedString.h"
#include "platform/linux/system/Command.h"
#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/system/Pipe.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/epoll.h>
#include <unistd.h>
#include <utility>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
using LinuxDesktop::makePipe;
using LinuxDesktop::Pipe;
namespace Command = LinuxDesktop::Command;

namespace {

/// A person starts one. The rest is for scripts, which may start thousands.
constexpr std::size_t mostAtOnce = 16;
constexpr std::size_t mostWaiting = 1024;
/// Of an answer. What is longer is no sentence for a person.
constexpr std::size_t longestAnswer = std::size_t{16} << 10U;

void doNotWaitFor(const FileDescriptor& end)
{
    ::fcntl(end.get(), F_SETFL, O_NONBLOCK);
}

std::vector<std::string> environmentWith(const std::string& token)
{
    std::vector<std::string> variables = Command::environment();
    for (const std::string_view name : {"XDG_ACTIVATION_TOKEN=", "DESKTOP_STARTUP_ID="}) {
        std::erase_if(variables, [name](const std::string& variable) { return variable.starts_with(name); });
        if (!token.empty())
            variables.push_back(std::string(name) + token);
    }
    return variables;
}

Outcome withoutAnswer()
{
    return Outcome::failed(NS::LocalizedString("Companion", "It ended before it was done."));
}

} // namespace

/// An action's program, from its start to its end.
class ActionRunner::Action {
public:
    Action(ActionRunner& runner, const ActionRequest& request, Finished finished)
        : m_runner(runner), m_input(inputOf(request)), m_finished(std::move(finished))
    {}
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    /// False where the program cannot be started or followed.
    bool start(const std::string& program, const ActionRequest& request, const std::string& token)
    {
        Pipe input = makePipe();
        Pipe output = makePipe();
        if (!input.writing || !output.reading)
            return false;
        doNotWaitFor(input.writing);
        doNotWaitFor(output.reading);
        std::vector<std::string> arguments = argumentsOf(request);
        arguments.insert(arguments.begin(), program);
        m_process = Command::start(program, std::move(arguments), environmentWith(token),
                                   {.input = input.reading.get(), .output = output.writing.get()});
        if (!m_process)
            return false;
        m_toProgram = std::move(input.writing);
        m_fromProgram = std::move(output.reading);
        return follow<&Action::write>(m_writing, m_toProgram, EPOLLOUT) &&
               follow<&Action::read>(m_reading, m_fromProgram, EPOLLIN) &&
               follow<&Action::end>(m_ending, m_process->ended(), EPOLLIN);
    }

    /// Only the first answer counts.
    void answer(const Outcome& outcome)
    {
        m_reading.reset();
        m_fromProgram = {};
        if (const Finished finished = std::exchange(m_finished, nullptr)) {
            --m_runner.m_busy;
            finished(outcome);
        }
    }

private:
    template<void (Action::*method)()>
    bool follow(EventSource& source, const FileDescriptor& descriptor, std::uint32_t events)
    {
        sd_event_source* made = nullptr;
        const auto happened = [](sd_event_source*, int, std::uint32_t, void* data) {
            auto& action = *static_cast<Action*>(data);
            ActionRunner& runner = action.m_runner;
            // It may be the action's end.
            (action.*method)();
            runner.startWaiting();
            return 0;
        };
        const int result = sd_event_add_io(&m_runner.m_event, &made, descriptor.get(), events, happened, this);
        source.reset(made);
        return result >= 0;
    }

    void write()
    {
        while (m_written < m_input.size()) {
            const ssize_t count = ::write(m_toProgram.get(), m_input.data() + m_written, m_input.size() - m_written);
            if (count < 0 && errno == EAGAIN)
                return;
            if (count < 0 && errno == EINTR)
                continue;
            // The program reads no more; what it has to say is in its answer.
            if (count < 0)
                break;
            m_written += static_cast<std::size_t>(count);
        }
        m_writing.reset();
        m_toProgram = {};
        m_input = {};
    }

    void read()
    {
        std::array<char, 4096> buffer{};
        for (;;) {
            const ssize_t count = ::read(m_fromProgram.get(), buffer.data(), buffer.size());
            if (count < 0 && errno == EAGAIN)
                return;
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                break;
            const std::size_t room = longestAnswer - m_text.size();
            m_text.append(buffer.data(), std::min(room, static_cast<std::size_t>(count)));
        }
        answer(outcomeFrom(m_text).value_or(withoutAnswer()));
    }

    void end()
    {
        // What was said before the end may still be in the pipe, which another program may have kept open.
        if (m_fromProgram)
            read();
        answer(outcomeFrom(m_text).value_or(withoutAnswer()));
        static_cast<void>(m_process->exitStatus());
        m_runner.ended(*this);
    }

    ActionRunner& m_runner;
    std::string m_input;
    std::size_t m_written = 0;
    std::string m_text;
    Finished m_finished;
    std::optional<Command::Process> m_process;
    FileDescriptor m_toProgram;
    FileDescriptor m_fromProgram;
    EventSource m_writing;
    EventSource m_reading;
    EventSource m_ending;
};

ActionRunner::ActionRunner(sd_event& event, std::string folder) : m_event(event), m_folder(std::move(folder)) {}

ActionRunner::~ActionRunner() = default;

bool ActionRunner::hasRoom() const
{
    return m_waiting.size() < mostWaiting;
}

void ActionRunner::run(const RunCall& call, Finished finished)
{
    if (m_busy < mostAtOnce)
        start(call, std::move(finished));
    else
        m_waiting.push_back({call, std::move(finished)});
}

void ActionRunner::start(const RunCall& call, Finished finished)
{
    ++m_busy;
    Action& action = m_actions.emplace_back(*this, call.request, std::move(finished));
    if (!action.start(m_folder + '/' + call.action, call.request, call.activationToken)) {
        action.answer(
            Outcome::failed(NS::LocalizedString("Companion", "The program that does this cannot be started.")));
        ended(action);
    }
}

void ActionRunner::startWaiting()
{
    while (m_busy < mostAtOnce && !m_waiting.empty()) {
        Waiting next = std::move(m_waiting.front());
        m_waiting.pop_front();
        start(next.call, std::move(next.finished));
    }
}

void ActionRunner::ended(Action& action)
{
    m_actions.remove_if([&](const Action& other) { return &other == &action; });
}

} // namespace MenuExtension
