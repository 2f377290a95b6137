#pragma once

#include "extension/bus/Handles.h"
#include "extension/companion/RunCall.h"
#include "extension/protocol/Outcome.h"

#include <deque>
#include <functional>
#include <list>
#include <string>

namespace MenuExtension {

/// Has actions done by their programs, a few at a time, from the event loop. The programs outlive the runner.
class ActionRunner {
public:
    using Finished = std::function<void(const Outcome&)>;

    /// `folder` is the one with the programs. `event` must outlive the runner.
    ActionRunner(sd_event& event, std::string folder);
    ~ActionRunner();
    ActionRunner(const ActionRunner&) = delete;
    ActionRunner& operator=(const ActionRunner&) = delete;

    /// Whether another action can be taken now.
    [[nodiscard]] bool hasRoom() const;
    /// `finished` is called when the action is done, or when the window that does it shows.
    void run(const RunCall& call, Finished finished);

private:
    class Action;
    struct Waiting {
        RunCall call;
        Finished finished;
    };

    void start(const RunCall& call, Finished finished);
    void startWaiting();
    void ended(Action& action);

    sd_event& m_event;
    std::string m_folder;
    std::deque<Waiting> m_waiting;
    /// Those without an answer.
    std::size_t m_busy = 0;
    std::list<Action> m_actions;
};

} // namespace MenuExtension
