#include "platform/linux/look/TabMark.h"

#include "platform/linux/look/ControlPainting.h"

namespace LinuxDesktop {

TabMark::TabMark(QTabBar& bar)
    : QObject(&bar), m_bar(bar), m_movement(bar, [&bar] { bar.update(); }), m_selected(bar.currentIndex())
{
    connect(&bar, &QTabBar::currentChanged, this, &TabMark::follow);
}

void TabMark::follow(int selected)
{
    m_from = onTheWayTo(m_selected);
    m_selected = selected;
    if (m_from.isValid() && selected >= 0)
        m_movement.begin();
}

QRect TabMark::place() const
{
    return onTheWayTo(m_bar.currentIndex());
}

QRect TabMark::onTheWayTo(int tab) const
{
    const QRect end = ControlPainting::markOfTab(m_bar.tabRect(tab));
    const qreal way = m_movement.way();
    const auto between = [way](int from, int to) { return qRound(from + (to - from) * way); };
    return way < 1.0
               ? QRect(between(m_from.x(), end.x()), end.y(), between(m_from.width(), end.width()), end.height())
               : end;
}

} // namespace LinuxDesktop
