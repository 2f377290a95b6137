#pragma once

#include "platform/View.h"

#include <cstddef>
#include <functional>
#include <utility>

namespace NS {

/// A view that the user operates. `tag` is the screen's own number for it. Main thread.
class Control : public View {
public:
    using Action = std::function<void(Control& sender)>;

    [[nodiscard]] std::ptrdiff_t tag() const { return m_tag; }
    void setTag(std::ptrdiff_t tag) { m_tag = tag; }

    /// What the control does when the user operates it; replaces what it did before. The target is whatever the
    /// action captured, and must outlive the control.
    void setAction(Action action) { m_action = std::move(action); }

    virtual void setEnabled(bool flag) = 0;

protected:
    /// For implementations: the user operated the control.
    void sendAction()
    {
        // A copy: the action may give the control another one.
        if (const Action action = m_action)
            action(*this);
    }

private:
    std::ptrdiff_t m_tag = 0;
    Action m_action;
};

} // namespace NS
