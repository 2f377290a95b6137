#include "platform/linux/scenes/Scenes.h"

#include "ui_UtilityKitWindow.h"
#include "ui_ViewController.h"
#include "ui_aboutVc.h"
#include "ui_collectionView_cell.h"
#include "ui_customFoldersVc.h"
#include "ui_firstRunvc.h"
#include "ui_foldersArrvc.h"
#include "ui_genraltabvc.h"
#include "ui_mainStartWindow.h"
#include "ui_tabviewcontroller.h"
#include "ui_tblcell.h"
#include "ui_utilityKitvc.h"

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
    Scene{"firstRunvc", make<QWidget, Ui::firstRunvc>},
    Scene{"genraltabvc", make<QWidget, Ui::genraltabvc>},
    Scene{"aboutVc", make<QWidget, Ui::aboutVc>},
    Scene{"foldersArrvc", make<QWidget, Ui::foldersArrvc>},
    Scene{"customFoldersVc", make<QWidget, Ui::customFoldersVc>},
    Scene{"UtilityKitWindow", make<MainWindow, Ui::UtilityKitWindow>},
    Scene{"utilityKitvc", make<QWidget, Ui::utilityKitvc>},
    Scene{"collectionView_cell", make<CardWidget, Ui::collectionView_cell>},
    Scene{"tblcell", make<RowWidget, Ui::tblcell>},
};

} // namespace

std::unique_ptr<QWidget> makeScene(std::string_view identifier)
{
    const auto* found = std::find_if(scenes.begin(), scenes.end(),
                                     [&](const Scene& scene) { return scene.identifier == identifier; });
    return found == scenes.end() ? nullptr : found->make();
}

} // namespace LinuxDesktop
