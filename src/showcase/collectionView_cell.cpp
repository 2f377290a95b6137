#include "showcase/collectionView_cell.h"

void collectionView_cell::connect(NS::Connections& connections)
{
    connections.outlet("lblapptype", lblapptype);
    connections.outlet("btnappstore", btnappstore);
    connections.outlet("imgview", imgview);
    connections.outlet("lblsubtitle", lblsubtitle);
    connections.outlet("lbltitle", lbltitle);
}
