#pragma once

#include "platform/Control.h"

#include <QAction>

namespace LinuxDesktop {

/// The sender that an entry of a menu is for its action. Owned by the entry. Main thread.
class MenuItem : public QObject, public NS::Control {
    Q_OBJECT

public:
    explicit MenuItem(QAction& entry) : QObject(&entry)
    {
        connect(&entry, &QAction::triggered, this, [this] { sendAction(); });
    }

    void setEnabled(bool flag) override { static_cast<QAction*>(parent())->setEnabled(flag); }
};

} // namespace LinuxDesktop
