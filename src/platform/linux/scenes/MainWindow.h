#pragma once

#include "platform/Window.h"

#include <QMainWindow>

namespace LinuxDesktop {

/// A window of a scene. Main thread.
class MainWindow : public QMainWindow, public NS::Window {
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;

    /// The delegate must outlive the window; null for none.
    void setDelegate(NS::WindowDelegate* delegate) { m_delegate = delegate; }

    /// The window that was ordered front or activated last and is on view; null for none.
    [[nodiscard]] static MainWindow* front();

    void setContentViewController(std::shared_ptr<NS::ViewController> controller) override;
    void makeKeyAndOrderFront() override;
    void endSheet(NS::Sheet& sheet) override;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void fitToContent();
    void fitToScreen();
    void noteInFront();

    NS::WindowDelegate* m_delegate = nullptr;
    std::shared_ptr<NS::ViewController> m_content;
};

} // namespace LinuxDesktop
