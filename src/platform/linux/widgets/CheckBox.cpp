#include "platform/linux/widgets/CheckBox.h"

namespace LinuxDesktop {

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent)
{
    // Unlike toggled, clicked comes from the user alone: by mouse, by keyboard or through accessibility.
    connect(this, &QCheckBox::clicked, this, [this] { sendAction(); });
}

void CheckBox::setState(NS::ControlState state)
{
    setChecked(state == NS::ControlState::On);
}

} // namespace LinuxDesktop
