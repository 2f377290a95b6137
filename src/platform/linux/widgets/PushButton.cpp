#include "platform/linux/widgets/PushButton.h"

namespace LinuxDesktop {

PushButton::PushButton(QWidget* parent) : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, [this] { sendAction(); });
}

void PushButton::setState(NS::ControlState state)
{
    setChecked(state == NS::ControlState::On);
}

} // namespace LinuxDesktop
