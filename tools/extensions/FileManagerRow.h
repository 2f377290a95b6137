#pragma once

#include "extensions/FileManagersControl.h"
#include "extensions/InformationRow.h"
#include "extensions/StatusLine.h"

#include <QPushButton>
#include <QWidget>

namespace ExtensionsTool {

/// A file manager in the list: how things stand with the menu in it, and a button that restarts it where that helps.
/// Hidden where the file manager is not installed.
class FileManagerRow : public InformationRow {
    Q_OBJECT

public:
    /// Of the file manager at that index. `control` must outlive the row.
    FileManagerRow(FileManagersControl& control, std::size_t index, QWidget* parent = nullptr);

private:
    void layOut(QLabel* title);
    void showStatus();

    FileManagersControl& m_control;
    const std::size_t m_index;
    StatusLine* m_state = nullptr;
    QPushButton* m_restart = nullptr;
};

} // namespace ExtensionsTool
