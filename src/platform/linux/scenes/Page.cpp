#include "platform/linux/scenes/Page.h"

#include <algorithm>

namespace LinuxDesktop {

namespace {

constexpr int contentWidth = 640;
constexpr int widest = contentWidth + 2 * Page::margin;

} // namespace

Page::Page(QWidget* parent) : QWidget(parent)
{
    setMaximumWidth(widest);
}

QSize Page::sizeHint() const
{
    return {widest, QWidget::sizeHint().height()};
}

int Page::contentStart(int windowWidth)
{
    return margin + std::max(0, (windowWidth - widest) / 2);
}

} // namespace LinuxDesktop
