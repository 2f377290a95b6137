#include "platform/linux/scenes/PushButton.h"

#include "platform/linux/scenes/ModalBlock.h"

namespace LinuxDesktop {

PushButton::PushButton(QWidget* parent) : ButtonWidget(parent)
{
    // Enter presses the button that has the keyboard.
    setAutoDefault(true);
    connect(this, &QPushButton::clicked, this, [this] {
        if (!isBlockedByPanel(*this))
            sendAction();
    });
}

void PushButton::setState(NS::ControlState state)
{
    setChecked(state == NS::ControlState::On);
}

void PushButton::setCustomButton(std::unique_ptr<NS::CustomButton> custom)
{
    m_custom = std::move(custom);
    m_custom->setButton(*this);
    m_custom->awakeFromNib();
}

} // namespace LinuxDesktop
