#pragma once

#include "platform/Connections.h"

/// A fake view that takes part in its scene's life.
class SceneAware {
public:
    virtual ~SceneAware() = default;

    /// The scene makes `owner`, the object that runs it, the view's delegate and data source where it is one.
    virtual void connectTo(NS::SceneObject& owner) = 0;
    /// The scene has loaded and shows.
    virtual void appear() {}
};
