#pragma once

#include "platform/Connections.h"
#include "platform/View.h"

namespace NS {

/// A row of a table. Made by its table from the scene that is named by the row's identifier, and reused by the
/// table for another row when it has left sight. Main thread.
class TableCellView : public View, public SceneObject {};

} // namespace NS
