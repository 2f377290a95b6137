#pragma once

#include "platform/CollectionView.h"

namespace LinuxDesktop {

/// Where the items of a flow layout lie in a view of a given width, in points from the view's corner. The items of a
/// full line are spread over the width between the insets, and a line of one item has it in the middle; a last line
/// that is not full keeps to the columns of those above.
class FlowGeometry {
public:
    FlowGeometry(const NS::CollectionViewFlowLayout& layout, double width);

    /// Items on a full line; at least one.
    [[nodiscard]] int columns() const { return m_columns; }
    [[nodiscard]] NS::Rect item(int index) const;
    /// Of all lines with the insets above and below.
    [[nodiscard]] double height(int items) const;

private:
    NS::CollectionViewFlowLayout m_layout;
    int m_columns;
    double m_firstColumn;
    /// From one column to the next.
    double m_columnStep;
};

} // namespace LinuxDesktop
