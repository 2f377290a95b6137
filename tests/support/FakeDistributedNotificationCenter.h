#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "support/CallLog.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// How the call log tells that the extension's notification of that name is observed.
[[nodiscard]] std::string observes(std::string_view name);

/// Sender objects that are like the extension's identifier, and are not it.
[[nodiscard]] std::vector<std::string> otherSenders();

/// A notification centre on which the test posts in place of another program.
class FakeDistributedNotificationCenter : public NS::DistributedNotificationCenter {
public:
    explicit FakeDistributedNotificationCenter(CallLog& calls) : m_calls(calls) {}

    void addObserver_name_object(std::function<void()> handler, std::string_view name,
                                 std::string_view object) override;

    /// Calls the observers of exactly this name and object: at once, or, while another posting is delivered or
    /// a panel holds the centre, after that.
    void post(std::string_view name, std::string_view object);

    /// While a modal panel runs. The postings made meanwhile are delivered by the next deliver().
    void hold() { m_held = true; }
    void release() { m_held = false; }
    /// What the event loop does on its next turn.
    void deliver();

private:
    struct Observer {
        std::function<void()> handler;
        std::string name;
        std::string object;
    };
    struct Posting {
        std::string name;
        std::string object;
    };

    CallLog& m_calls;
    std::vector<Observer> m_observers;
    std::deque<Posting> m_postings;
    bool m_held = false;
    bool m_delivering = false;
};
