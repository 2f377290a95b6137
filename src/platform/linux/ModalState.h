#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace LinuxDesktop {

/// Whether a modal panel is running. Panels hold a Session while they run; whoever must not act meanwhile asks
/// active() and is told when the last session ended. Main thread.
class ModalState {
public:
    class Session {
    public:
        explicit Session(ModalState& state) : m_state(state) { ++m_state.m_depth; }
        ~Session()
        {
            if (--m_state.m_depth > 0)
                return;
            for (const auto& ended : m_state.m_ended)
                ended();
        }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

    private:
        ModalState& m_state;
    };

    [[nodiscard]] bool active() const { return m_depth > 0; }
    /// Calls each at the end of the last session. They must return to the event loop before they run another panel.
    void whenEnded(std::function<void()> ended) { m_ended.push_back(std::move(ended)); }

private:
    int m_depth = 0;
    std::vector<std::function<void()>> m_ended;
};

} // namespace LinuxDesktop
