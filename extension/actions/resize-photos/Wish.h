#pragma once

#include "ResizePhoto.h"

namespace MenuExtension::Resizing {

/// How large a person wants the photos.
struct Wish {
    Goal goal;
    /// Of a goal in bytes: whether they are for all photos together.
    bool isForAll = false;

    [[nodiscard]] Goal forEach(const Request& request) const
    {
        return isForAll ? sharedGoal(request, request.paths, goal) : goal;
    }
    friend bool operator==(const Wish&, const Wish&) = default;
};

} // namespace MenuExtension::Resizing
