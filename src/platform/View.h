#pragma once

#include <memory>

namespace NS {

/// Something a scene shows. Owned by its scene; everybody else refers to it through an Outlet. Main thread.
class View {
public:
    View() = default;
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

private:
    template<class>
    friend class Outlet;

    std::shared_ptr<const View*> m_alive = std::make_shared<const View*>(this);
};

} // namespace NS
