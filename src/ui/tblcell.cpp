#include "ui/tblcell.h"

void tblcell::connect(NS::Connections& connections)
{
    connections.outlet("lbltitle", lbltitle);
    connections.outlet("imgview", imgview);
    connections.outlet("checkbox", checkbox);
    connections.outlet("btnDelete", btnDelete);
}
