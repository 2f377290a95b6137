#pragma once

#include "platform/Control.h"
#include "platform/FatalError.h"
#include "platform/Outlet.h"

#include <string>
#include <string_view>

namespace NS {

/// A scene's side of connecting an object to it: the object names its outlets and actions, the scene fills and
/// wires those it has. Main thread.
class Connections {
public:
    virtual ~Connections() = default;

    /// Fills the outlet with the scene's view of its name. A scene without one leaves it empty; a view of another
    /// class is fatal.
    template<class T>
    void outlet(Outlet<T>& outlet)
    {
        View* view = viewNamed(outlet.name());
        if (!view)
            return;
        auto* typed = dynamic_cast<T*>(view);
        if (!typed)
            fatalError("the view \"" + std::string(outlet.name()) + "\" is of another class than its outlet");
        outlet.connect(*typed);
    }

    /// Wires every control of the scene that names `selector`. The action's target must outlive the scene.
    virtual void action(std::string_view selector, Control::Action action) = 0;

protected:
    [[nodiscard]] virtual View* viewNamed(std::string_view name) = 0;
};

/// An object that scenes connect to themselves.
class SceneObject {
public:
    virtual ~SceneObject() = default;

    /// Lists the object's outlets and actions. Called once, before anything else a scene calls.
    virtual void connect(Connections&) {}
};

} // namespace NS
