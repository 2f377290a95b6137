#pragma once

#include <QToolButton>

namespace LinuxDesktop {

/// Opens the menu of the window that it lies in: the actions of the window itself. Its text is its accessible name,
/// and the mnemonic in it opens the menu too, as F10 does. Main thread.
class MenuButton : public QToolButton {
    Q_OBJECT

public:
    /// Between the button's edge and its sign.
    static constexpr int padding = 8;

    explicit MenuButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showMenuByKey();
};

} // namespace LinuxDesktop
