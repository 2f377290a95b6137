#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace LinuxDesktop {

/// Whether a modal panel is running. Panels hold a Session while they run; whoever must not act meanwhile asks
/// active() and is told when the last one has gone. Main thread.
class ModalState {
public:
    using Callback = std::function<void()>;

    class Session {
    public:
        explicit Session(ModalState& state) : m_state(state) { ++m_state.m_depth; }
        ~Session()
        {
            if (--m_state.m_depth == 0)
                m_state.tellEnded();
        }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

    private:
        ModalState& m_state;
    };

    [[nodiscard]] bool active() const { return m_depth > 0; }
    /// Calls `ended` whenever the last panel has gone, as long as the caller keeps what it gets. It must return to
    /// the event loop before it runs another panel.
    [[nodiscard]] std::shared_ptr<const Callback> whenEnded(Callback ended)
    {
        auto listener = std::make_shared<const Callback>(std::move(ended));
        m_listeners.push_back(listener);
        return listener;
    }

private:
    void tellEnded()
    {
        std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
        for (const auto& listener : std::vector(m_listeners)) {
            if (const auto ended = listener.lock())
                (*ended)();
        }
    }

    int m_depth = 0;
    std::vector<std::weak_ptr<const Callback>> m_listeners;
};

} // namespace LinuxDesktop
