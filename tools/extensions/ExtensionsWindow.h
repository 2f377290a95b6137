#pragma once

#include "extensions/ExtensionControl.h"

#include <QIcon>
#include <QWidget>

#include <vector>

namespace ExtensionsTool {

/// The window "Extensions": the list of them, each with its switch.
class ExtensionsWindow : public QWidget {
    Q_OBJECT

public:
    /// The controls must outlive the window.
    ExtensionsWindow(const std::vector<ExtensionControl*>& controls, const QIcon& icon);

    /// Brings it to the front, also where it is minimised.
    void comeToFront();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeRoomForTexts();
};

} // namespace ExtensionsTool
