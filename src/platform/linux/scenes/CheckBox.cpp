#include "platform/linux/scenes/CheckBox.h"

#include "platform/linux/scenes/ModalBlock.h"

#include <QSignalBlocker>

namespace LinuxDesktop {

CheckBox::CheckBox(QWidget* parent) : ButtonWidget(parent)
{
    // Not clicked: assistive programs may toggle the box without a click.
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        if (!isBlockedByPanel(*this))
            sendAction();
        else
            setState(on ? NS::ControlState::Off : NS::ControlState::On);
    });
}

void CheckBox::setState(NS::ControlState state)
{
    const QSignalBlocker nobodyOperatesIt(this);
    setChecked(state == NS::ControlState::On);
}

} // namespace LinuxDesktop
