#include "platform/linux/widgets/Scenes.h"

#include "ui_ViewController.h"
#include "ui_mainStartWindow.h"
#include "ui_tabviewcontroller.h"
#include "ui_tblcell.h"

#include <algorithm>
#include <array>

namespace LinuxDesktop {

namespace {

template<class Root, class Design>
std::unique_ptr<QWidget> make()
{
    auto root = std::make_unique<Root>();
    Design().setupUi(root.get());
    return root;
}

struct Scene {
    std::string_view identifier;
    std::unique_ptr<QWidget> (*make)();
};

constexpr std::array scenes{
    Scene{"mainStartWindow", make<MainWindow, Ui::mainStartWindow>},
    Scene{"tabviewcontroller", make<QWidget, Ui::tabviewcontroller>},
    Scene{"ViewController", make<QWidget, Ui::ViewController>},
    Scene{"tblcell", make<RowWidget, Ui::tblcell>},
};

const Scene* sceneNamed(std::string_view identifier)
{
    const auto* found = std::find_if(scenes.begin(), scenes.end(),
                                     [&](const Scene& scene) { return scene.identifier == identifier; });
    return found == scenes.end() ? nullptr : found;
}

} // namespace

bool hasScene(std::string_view identifier)
{
    return sceneNamed(identifier) != nullptr;
}

std::unique_ptr<QWidget> makeScene(std::string_view identifier)
{
    const Scene* scene = sceneNamed(identifier);
    return scene ? scene->make() : nullptr;
}

} // namespace LinuxDesktop
