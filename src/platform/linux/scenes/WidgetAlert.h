#pragma once

#include "platform/Alert.h"
#include "platform/linux/system/ModalState.h"

#include <QPointer>

namespace LinuxDesktop {

class AlertDialog;

/// An alert as a window of this program. The window is made when something is first asked of it. Main thread.
class WidgetAlert : public NS::Alert {
public:
    /// `modalState` must outlive the alert.
    explicit WidgetAlert(ModalState& modalState) : m_modalState(modalState) {}
    /// A sheet that is up stays up, and goes when it is dismissed.
    ~WidgetAlert() override;

    /// Both styles look the same: a caution sign is for what is critical.
    void setAlertStyle(NS::AlertStyle) override {}
    void setMessageText(std::string_view text) override;
    void setInformativeText(std::string_view text) override;
    void addButtonWithTitle(std::string_view title) override;
    std::vector<NS::Button*> buttons() override;
    NS::Sheet& window() override;
    void beginSheetModalForWindow(NS::Window& parent) override;
    void runModal() override;

private:
    AlertDialog& dialog();

    ModalState& m_modalState;
    QPointer<AlertDialog> m_dialog;
};

} // namespace LinuxDesktop
