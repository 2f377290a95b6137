#pragma once

#include "platform/linux/look/Dialog.h"

#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace LinuxDesktop {

/// Asks for a name and makes a folder of it. Accepted, it has made the folder. Main thread.
class NewFolderDialog : public Dialog {
    Q_OBJECT

public:
    /// `parent` is the folder's path in bytes.
    explicit NewFolderDialog(std::string parent, QWidget* window);

signals:
    /// The folder's name in bytes.
    void made(const std::string& name);

private:
    void make();
    void complain(const QString& words);

    const std::string m_parent;
    QLineEdit* m_name;
    QLabel* m_complaint;
    QPushButton* m_createButton;
};

} // namespace LinuxDesktop
