#pragma once

#include <QDialog>

namespace LinuxDesktop {

/// A dialog that gives the keyboard back to its window when a person ends it. Window managers see to that;
/// compositors give it to whichever window had it before. Main thread.
class Dialog : public QDialog {
public:
    using QDialog::QDialog;

    void done(int result) override;
};

} // namespace LinuxDesktop
