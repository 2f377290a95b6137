#pragma once

#include <QWidget>

namespace ExtensionsTool {

/// A raised area with round corners that holds a list's rows.
class Card : public QWidget {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr) : QWidget(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ExtensionsTool
