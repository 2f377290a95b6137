#pragma once

#include "extensions/ExtensionControl.h"
#include "extensions/FileManagersControl.h"

#include <QIcon>
#include <QWidget>

#include <string>
#include <vector>

namespace ExtensionsTool {

/// The window "Extensions": the list of them, each with its switch, and of the file managers that they come into.
class ExtensionsWindow : public QWidget {
    Q_OBJECT

public:
    /// The controls must outlive the window. `icon` is shown beside each. The actions' programs are in `actions`.
    ExtensionsWindow(const std::vector<ExtensionControl*>& controls, FileManagersControl& fileManagers,
                     const std::string& actions, const QIcon& icon);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeRoomForTexts();

    QWidget* m_content;
};

} // namespace ExtensionsTool
