#include "app/ApplicationClasses.h"
#include "platform/ApplicationMain.h"
#include "registry/ControllerRegistry.h"

int main(int argc, char** argv)
{
    ControllerRegistry registry;
    return NS::ApplicationMain(argc, argv, applicationClasses(registry));
}
