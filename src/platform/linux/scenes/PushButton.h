#pragma once

#include "platform/CustomButton.h"
#include "platform/linux/scenes/ButtonWidget.h"

#include <QPushButton>

#include <memory>

namespace LinuxDesktop {

/// A button of a scene that does something when pressed. Main thread.
class PushButton : public ButtonWidget<QPushButton> {
    Q_OBJECT

public:
    explicit PushButton(QWidget* parent = nullptr);

    void setState(NS::ControlState state) override;

    /// Adds what a class of the program makes of the button, and wakes it.
    void setCustomButton(std::unique_ptr<NS::CustomButton> custom);

private:
    std::unique_ptr<NS::CustomButton> m_custom;
};

} // namespace LinuxDesktop
