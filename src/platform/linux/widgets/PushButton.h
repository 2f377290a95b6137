#pragma once

#include "platform/Button.h"

#include <QPushButton>

namespace LinuxDesktop {

/// A button of a scene that does something when pressed. Main thread.
class PushButton : public QPushButton, public NS::Button {
    Q_OBJECT

public:
    explicit PushButton(QWidget* parent = nullptr);

    void setState(NS::ControlState state) override;
};

} // namespace LinuxDesktop
