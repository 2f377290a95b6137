#pragma once

#include <QWidget>

namespace LinuxDesktop {

/// A sheet with round corners, for what belongs together. Main thread.
class Card : public QWidget {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr) : QWidget(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace LinuxDesktop
