#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace LinuxDesktop {

enum class ControlState { Resting, Hovered, Pressed, Focused, Disabled, Selected };
inline constexpr ControlState controlStates[] = {ControlState::Resting,  ControlState::Hovered,
                                                 ControlState::Pressed,  ControlState::Focused,
                                                 ControlState::Disabled, ControlState::Selected};
[[nodiscard]] QString nameOf(ControlState state);

/// A control in a window of its own, which the pointer, the keyboard or the program bring into a state.
class Specimen {
public:
    virtual ~Specimen() = default;

    [[nodiscard]] virtual QWidget& window() = 0;
    /// What the pointer does something to, and where.
    [[nodiscard]] virtual QWidget& target() = 0;
    [[nodiscard]] virtual QPoint place() { return target().rect().center(); }
    virtual void focus() { target().setFocus(Qt::OtherFocusReason); }
    virtual void disable() { target().setEnabled(false); }
    virtual void select() {}
    [[nodiscard]] virtual QRect part() { return window().rect(); }
};

/// One of the controls that our windows consist of, and the states that it has.
struct Control {
    QString name;
    std::vector<ControlState> states;
    std::function<std::unique_ptr<Specimen>()> make;
};

[[nodiscard]] std::vector<Control> controls();

/// What the control looks like in a state, in the application's style and palette.
[[nodiscard]] QImage pictureOf(const Control& control, ControlState state);

} // namespace LinuxDesktop
