#pragma once

#include "platform/Window.h"

#include <QMainWindow>

namespace LinuxDesktop {

/// A window of a scene. It opens as large as it was left on the screen that it opens on, and no larger than that.
/// Main thread.
class MainWindow : public QMainWindow, public NS::Window {
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;
    ~MainWindow() override;

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
    void takeSize();
    void noteInFront();

    NS::WindowDelegate* m_delegate = nullptr;
    std::shared_ptr<NS::ViewController> m_content;
    /// As its scene has it.
    QSize m_designedSize;
    /// As it was opened; none before that.
    QSize m_openedSize;
};

} // namespace LinuxDesktop
