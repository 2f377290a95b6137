#pragma once

#include "platform/linux/look/Movement.h"

#include <QTabBar>

namespace LinuxDesktop {

/// The mark of the selected tab, which goes from one to the next. Main thread.
class TabMark : public QObject {
    Q_OBJECT

public:
    /// The bar owns it.
    explicit TabMark(QTabBar& bar);

    /// Where the mark is at this moment.
    [[nodiscard]] QRect place() const;

private:
    [[nodiscard]] QRect onTheWayTo(int tab) const;
    void follow(int selected);

    QTabBar& m_bar;
    Movement m_movement;
    int m_selected;
    QRect m_from;
};

} // namespace LinuxDesktop
