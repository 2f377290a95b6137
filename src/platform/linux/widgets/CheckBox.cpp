#include "platform/linux/widgets/CheckBox.h"

#include <QSignalBlocker>

namespace LinuxDesktop {

CheckBox::CheckBox(QWidget* parent) : ButtonWidget(parent)
{
    // Not clicked: assistive programs may toggle the box without a click.
    connect(this, &QCheckBox::toggled, this, [this] { sendAction(); });
}

void CheckBox::setState(NS::ControlState state)
{
    const QSignalBlocker nobodyOperatesIt(this);
    setChecked(state == NS::ControlState::On);
}

} // namespace LinuxDesktop
