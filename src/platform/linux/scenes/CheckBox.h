#pragma once

#include "platform/linux/scenes/ButtonWidget.h"

#include <QCheckBox>

namespace LinuxDesktop {

/// A button of a scene that is on or off. Main thread.
class CheckBox : public ButtonWidget<QCheckBox> {
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);

    void setState(NS::ControlState state) override;
};

} // namespace LinuxDesktop
