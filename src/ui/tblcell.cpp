#include "ui/tblcell.h"

void tblcell::connect(NS::Connections& connections)
{
    connections.outlet(lbltitle);
    connections.outlet(imgview);
    connections.outlet(checkbox);
    connections.outlet(btnDelete);
}
