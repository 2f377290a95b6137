#pragma once

#include "platform/linux/mailing/Attaching.h"

#include <QDialog>

class QLabel;
class QProgressBar;

namespace LinuxDesktop {

/// Shows that items are being made ready for a message, and can be told to leave it. Main thread.
class PreparingWindow : public QDialog {
    Q_OBJECT

public:
    /// `names` are the items' in words. `progress` must outlive the window.
    PreparingWindow(const QString& names, AttachingProgress& progress);

    /// Cancels the work.
    void reject() override;

private:
    void showProgress();

    AttachingProgress& m_progress;
    QProgressBar* m_bar;
    QLabel* m_bytes;
};

} // namespace LinuxDesktop
