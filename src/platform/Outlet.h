#pragma once

#include "platform/FatalError.h"
#include "platform/View.h"

#include <memory>
#include <string>
#include <string_view>

namespace NS {

/// A weak reference to a view, filled by the scene. Empty until then and again once the view is gone; using an
/// empty one is a fatal error that names it.
template<class T>
class Outlet {
public:
    /// `name`, that of the view in its scene, must outlive the outlet (a literal).
    explicit Outlet(std::string_view name) : m_name(name) {}

    [[nodiscard]] std::string_view name() const { return m_name; }

    void connect(T& view)
    {
        m_view = &view;
        m_alive = static_cast<const View&>(view).m_alive;
    }

    [[nodiscard]] explicit operator bool() const { return !m_alive.expired(); }

    [[nodiscard]] T& operator*() const
    {
        if (m_alive.expired())
            fatalError("the outlet \"" + std::string(m_name) + "\" is empty");
        return *m_view;
    }
    [[nodiscard]] T* operator->() const { return &**this; }

private:
    std::string_view m_name;
    T* m_view = nullptr;
    std::weak_ptr<const View*> m_alive;
};

} // namespace NS
