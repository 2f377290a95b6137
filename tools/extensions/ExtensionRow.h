#pragma once

#include "extensions/ExtensionControl.h"
#include "extensions/StatusLine.h"
#include "extensions/Switch.h"

#include <QIcon>
#include <QLabel>
#include <QWidget>

namespace ExtensionsTool {

/// An extension in the list: what it is, how things stand with it, and its switch.
class ExtensionRow : public QWidget {
    Q_OBJECT

public:
    /// `control` must outlive the row.
    ExtensionRow(ExtensionControl& control, const QIcon& icon, QWidget* parent = nullptr);

private:
    void layOut(QLabel* picture, QLabel* title, QLabel* explanation);
    void showStatus();

    ExtensionControl& m_control;
    StatusLine* m_state = nullptr;
    Switch* m_switch = nullptr;
};

} // namespace ExtensionsTool
