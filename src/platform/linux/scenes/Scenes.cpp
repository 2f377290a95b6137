#include "platform/linux/scenes/Scenes.h"

#include "SceneDesigns.h"

#include <algorithm>
#include <array>

namespace LinuxDesktop {

namespace {

/// The root is of the class that the design asks for.
template<class Design, class Root>
std::unique_ptr<QWidget> makeRoot(void (Design::*setUp)(Root*))
{
    auto root = std::make_unique<Root>();
    (Design().*setUp)(root.get());
    return root;
}

template<class Design>
std::unique_ptr<QWidget> make()
{
    return makeRoot(&Design::setupUi);
}

struct Scene {
    std::string_view identifier;
    std::unique_ptr<QWidget> (*make)();
};

constexpr std::array scenes{
#include "SceneTable.inc"
};

} // namespace

std::unique_ptr<QWidget> makeScene(std::string_view identifier)
{
    const auto* found = std::find_if(scenes.begin(), scenes.end(),
                                     [&](const Scene& scene) { return scene.identifier == identifier; });
    return found == scenes.end() ? nullptr : found->make();
}

} // namespace LinuxDesktop
