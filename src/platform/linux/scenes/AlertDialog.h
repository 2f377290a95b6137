#pragma once

#include "platform/Window.h"
#include "platform/linux/look/Dialog.h"
#include "platform/linux/scenes/PushButton.h"

#include <vector>

class QLabel;
class QHBoxLayout;

namespace LinuxDesktop {

/// The window of an alert, with the application's name and icon. Escape and the window's own close button press the
/// last button. Main thread.
class AlertDialog : public Dialog, public NS::Sheet {
    Q_OBJECT

public:
    AlertDialog();

    void setMessage(const QString& text);
    void setInformation(const QString& text);
    /// The first one is the default button. Without another action it accepts the dialog.
    void addButton(const QString& title);
    [[nodiscard]] const std::vector<PushButton*>& buttons() const { return m_buttons; }

    void reject() override;

private:
    QLabel* m_message;
    QLabel* m_information;
    QHBoxLayout* m_buttonRow;
    std::vector<PushButton*> m_buttons;
};

} // namespace LinuxDesktop
