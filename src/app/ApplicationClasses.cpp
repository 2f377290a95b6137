#include "app/ApplicationClasses.h"

#include "app/AppDelegate.h"
#include "app/UtilityKitWindow.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "folders/customFoldersVc.h"
#include "folders/foldersArrvc.h"
#include "menu/ViewController.h"
#include "onboarding/firstRunvc.h"
#include "onboarding/genraltabvc.h"
#include "showcase/collectionView_cell.h"
#include "showcase/utilityKitvc.h"
#include "ui/aboutVc.h"
#include "ui/buttoncursor.h"
#include "ui/tblcell.h"

NS::ClassTable applicationClasses(ControllerRegistry& registry)
{
    NS::ClassTable classes;
    classes.delegates["AppDelegate"] = [&registry] { return std::make_shared<AppDelegate>(registry); };
    classes.controllers["mainStartWindow"] = [&registry] { return std::make_shared<mainStartWindow>(registry); };
    classes.controllers["firstRunvc"] = [&registry] { return std::make_shared<firstRunvc>(registry); };
    classes.controllers["tabviewcontroller"] = [] { return std::make_shared<tabviewcontroller>(); };
    classes.controllers["ViewController"] = [] { return std::make_shared<ViewController>(); };
    classes.controllers["foldersArrvc"] = [&registry, runBookmarks = std::make_shared<RunBookmarks>()] {
        return std::make_shared<foldersArrvc>(registry, runBookmarks);
    };
    classes.controllers["genraltabvc"] = [] { return std::make_shared<genraltabvc>(); };
    classes.controllers["aboutVc"] = [] { return std::make_shared<aboutVc>(); };
    classes.controllers["customFoldersVc"] = [] { return std::make_shared<customFoldersVc>(); };
    classes.controllers["UtilityKitWindow"] = [&registry] { return std::make_shared<UtilityKitWindow>(registry); };
    classes.controllers["utilityKitvc"] = [] { return std::make_shared<utilityKitvc>(); };
    classes.controllers["collectionView_cell"] = [] { return std::make_shared<collectionView_cell>(); };
    classes.cells["tblcell"] = [] { return std::make_unique<tblcell>(); };
    classes.buttons["buttoncursor"] = [] { return std::make_unique<buttoncursor>(); };
    return classes;
}
