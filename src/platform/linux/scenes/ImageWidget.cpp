#include "platform/linux/scenes/ImageWidget.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/scenes/ImageStore.h"

#include <QPainter>

#include <algorithm>

namespace LinuxDesktop {

ImageWidget::ImageWidget(QWidget* parent) : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::NoRole);
}

void ImageWidget::setImage(const std::optional<NS::Image>& image)
{
    m_name = image ? QString::fromStdString(image->name()) : QString();
    update();
}

bool ImageWidget::shows(const NS::Image& image) const
{
    return m_name == QString::fromStdString(image.name());
}

void ImageWidget::paintEvent(QPaintEvent*)
{
    if (m_name.isEmpty() || !m_store)
        return;
    const int extent = std::min(width(), height());
    QPainter painter(this);
    painter.drawPixmap(QPointF((width() - extent) / 2.0, (height() - extent) / 2.0),
                       m_store->pixmap(m_name, extent, devicePixelRatioF(), palette().color(foregroundRole())));
}

} // namespace LinuxDesktop
