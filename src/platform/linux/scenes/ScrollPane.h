#pragma once

#include "platform/ScrollView.h"

#include <QScrollArea>

namespace LinuxDesktop {

/// Scrolls the view of a scene that is its child. It takes no focus: what it shows does. Main thread.
class ScrollPane : public QScrollArea, public NS::ScrollView {
    Q_OBJECT

public:
    explicit ScrollPane(QWidget* parent = nullptr);

    void setBackgroundColor(NS::Color color) override;
};

} // namespace LinuxDesktop
