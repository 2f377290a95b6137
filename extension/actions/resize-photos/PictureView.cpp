#include "PictureView.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QPainter>

#include <algorithm>

namespace MenuExtension::Resizing {

namespace {

/// Between the outline and the picture.
constexpr int space = 8;
constexpr QSize smallest(190, 120);

} // namespace

PictureView::PictureView(QWidget* parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    LinuxDesktop::setAccessibleRole(*this, QAccessible::Graphic);
    setMinimumSize(smallest);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::show(const QImage& picture)
{
    m_picture = picture;
    update();
}

int PictureView::room() const
{
    const QSize size = contentsRect().size();
    return std::max(1, static_cast<int>((std::max(size.width(), size.height()) - 2 * space) * devicePixelRatioF()));
}

void PictureView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (m_picture.isNull())
        return;
    const QRect place = contentsRect().adjusted(space, space, -space, -space);
    QRect shown(QPoint(), m_picture.size().scaled(place.size(), Qt::KeepAspectRatio));
    shown.moveCenter(place.center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(shown, m_picture);
}

} // namespace MenuExtension::Resizing
