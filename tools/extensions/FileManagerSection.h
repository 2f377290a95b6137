#pragma once

#include "extensions/FileManagersControl.h"
#include "platform/linux/look/Card.h"

#include <QLabel>
#include <QWidget>

namespace ExtensionsTool {

/// The list of the file managers that are installed. It is kept up to date while it is on view.
class FileManagerSection : public QWidget {
    Q_OBJECT

public:
    /// `control` must outlive it.
    explicit FileManagerSection(FileManagersControl& control, QWidget* parent = nullptr);

protected:
    // Also where its window is minimised.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showWhatThereIs();

    FileManagersControl& m_control;
    QLabel* m_heading;
    LinuxDesktop::Card* m_card;
};

} // namespace ExtensionsTool
