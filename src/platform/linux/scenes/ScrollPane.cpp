#include "platform/linux/scenes/ScrollPane.h"

namespace LinuxDesktop {

ScrollPane::ScrollPane(QWidget* parent) : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignHCenter);
}

void ScrollPane::setBackgroundColor(NS::Color)
{
    // Clear is the one colour that there is.
    viewport()->setAutoFillBackground(false);
}

} // namespace LinuxDesktop
