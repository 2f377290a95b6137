#pragma once

#include <QWidget>

namespace ExtensionsTool {

/// A row that tells something. Tab comes to it, so that those who go through the window by keyboard hear what it
/// tells.
class InformationRow : public QWidget {
public:
    explicit InformationRow(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ExtensionsTool
