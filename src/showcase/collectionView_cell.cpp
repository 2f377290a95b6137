#include "showcase/collectionView_cell.h"

void collectionView_cell::connect(NS::Connections& connections)
{
    connections.outlet(lblapptype);
    connections.outlet(btnappstore);
    connections.outlet(imgview);
    connections.outlet(lblsubtitle);
    connections.outlet(lbltitle);
}
