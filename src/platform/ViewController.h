#pragma once

#include "platform/Connections.h"
#include "platform/Geometry.h"

#include <any>
#include <memory>
#include <utility>

namespace NS {

/// What a storyboard scene is run by: a ViewController or a WindowController. Held by shared_ptr. Main thread.
class Controller : public SceneObject {
public:
    /// The scene as the platform keeps it: the views and what connects them. It goes when the controller goes.
    class Scene {
    public:
        virtual ~Scene() = default;

        /// The root view's place and size.
        [[nodiscard]] virtual Rect frame() const = 0;
    };

    /// For storyboards.
    void setScene(std::unique_ptr<Scene> scene) { m_scene = std::move(scene); }
    [[nodiscard]] Scene* scene() const { return m_scene.get(); }

private:
    std::unique_ptr<Scene> m_scene;
};

/// Runs a screen.
class ViewController : public Controller {
public:
    /// The scene's views exist and its outlets are filled. Called once.
    virtual void viewDidLoad() {}
    // Each time that the view comes into sight or leaves it, with its tab or window. Minimising is neither.
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear() {}

    /// What the screen stands for, of any kind; empty until it is set. The platform keeps it and no more.
    [[nodiscard]] virtual const std::any& representedObject() const { return m_representedObject; }
    virtual void setRepresentedObject(std::any object) { m_representedObject = std::move(object); }

private:
    std::any m_representedObject;
};

} // namespace NS
