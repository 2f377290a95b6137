#include "app/ApplicationClasses.h"

#include "app/AppDelegate.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "menu/ViewController.h"
#include "ui/tblcell.h"

NS::ClassTable applicationClasses(ControllerRegistry& registry)
{
    NS::ClassTable classes;
    classes.delegates["AppDelegate"] = [&registry] { return std::make_shared<AppDelegate>(registry); };
    classes.controllers["mainStartWindow"] = [&registry] { return std::make_shared<mainStartWindow>(registry); };
    classes.controllers["tabviewcontroller"] = [] { return std::make_shared<tabviewcontroller>(); };
    classes.controllers["ViewController"] = [] { return std::make_shared<ViewController>(); };
    classes.cells["tblcell"] = [] { return std::make_unique<tblcell>(); };
    return classes;
}
