#pragma once

#include "platform/linux/scenes/Label.h"

namespace LinuxDesktop {

/// A text of several lines that takes the room its scene leaves for it: what does not fit is cut off at the end, and
/// then the whole of it is its tool tip. Main thread.
class Paragraph : public Label {
    Q_OBJECT

public:
    explicit Paragraph(QWidget* parent = nullptr);

    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

protected:
    [[nodiscard]] bool isCut() const override;
    void paintCut(QPainter& painter) override;
};

} // namespace LinuxDesktop
