#pragma once

#include "platform/linux/look/Movement.h"

#include <QCheckBox>

namespace ExtensionsTool {

/// A checkbox drawn as a switch without a text beside it. What it shows is set; operating it asks for a change.
class Switch : public QCheckBox {
    Q_OBJECT

public:
    explicit Switch(QWidget* parent = nullptr);

    void setOn(bool on);
    [[nodiscard]] QSize sizeHint() const override;

    /// Somebody has operated it; it goes on showing what it was told to show.
    Q_SIGNAL void asked(bool on);

protected:
    void nextCheckState() override;
    bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;
    // The area under the pointer is drawn differently.
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void ask(bool on);

    LinuxDesktop::Movement m_movement;
    /// The knob moves by somebody's hand only: what is found out at the start, or done elsewhere, is just shown.
    bool m_isOperated = false;
};

} // namespace ExtensionsTool
