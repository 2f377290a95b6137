#include "platform/linux/scenes/FlowGeometry.h"

#include <algorithm>
#include <cmath>

namespace LinuxDesktop {

FlowGeometry::FlowGeometry(const NS::CollectionViewFlowLayout& layout, double width)
    : m_layout(layout), m_columns(1), m_firstColumn(layout.sectionInset.left), m_columnStep(0.0)
{
    const double room = width - layout.sectionInset.left - layout.sectionInset.right;
    const double item = layout.itemSize.width;
    const double spacing = layout.minimumInteritemSpacing;
    m_columns = std::max(1, static_cast<int>(std::floor((room + spacing) / (item + spacing))));
    if (m_columns == 1)
        m_firstColumn += (room - item) / 2.0;
    else
        m_columnStep = (room - item) / (m_columns - 1);
}

NS::Rect FlowGeometry::item(int index) const
{
    const int line = index / m_columns;
    const int column = index % m_columns;
    return {m_firstColumn + column * m_columnStep,
            m_layout.sectionInset.top + line * (m_layout.itemSize.height + m_layout.minimumLineSpacing),
            m_layout.itemSize};
}

double FlowGeometry::height(int items) const
{
    const double insets = m_layout.sectionInset.top + m_layout.sectionInset.bottom;
    if (items == 0)
        return insets;
    const int lines = (items + m_columns - 1) / m_columns;
    return insets + lines * m_layout.itemSize.height + (lines - 1) * m_layout.minimumLineSpacing;
}

} // namespace LinuxDesktop
