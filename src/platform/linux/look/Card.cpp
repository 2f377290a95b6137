#include "platform/linux/look/Card.h"

#include "platform/linux/look/ControlPainting.h"

namespace LinuxDesktop {

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ControlPainting::drawSheet(rect(), palette(), painter);
}

} // namespace LinuxDesktop
