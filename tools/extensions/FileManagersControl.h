#pragma once

#include "extension/filemanagers/Places.h"
#include "extensions/FileManagerStatus.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <array>
#include <chrono>
#include <memory>

namespace ExtensionsTool {

/// Knows how things stand with the menu in each file manager, and restarts one. Main thread.
class FileManagersControl : public QObject {
    Q_OBJECT

public:
    /// How long a file manager may take to close until something is wrong, and the time between two looks.
    static constexpr std::chrono::seconds longestWait{10};
    static constexpr std::chrono::seconds usualPause{2};

    /// Has looked once, where that takes no more than a moment.
    explicit FileManagersControl(MenuExtension::Places places, std::chrono::milliseconds patience = longestWait,
                                 std::chrono::milliseconds pause = usualPause);
    ~FileManagersControl() override;

    /// Looks at once, and again and again until it is told to rest.
    void follow();
    void rest();

    /// Of the file manager at an index of `fileManagers`.
    [[nodiscard]] const FileManagerStatus& status(std::size_t index) const { return m_statuses.at(index); }
    /// Asks it to close; status() tells how it goes on. It starts anew when it is next wanted.
    void restart(std::size_t index);

    /// A status() is another one than before.
    Q_SIGNAL void changed();

private:
    void look();
    void takeFound();
    void lookLater();
    void giveUp(std::size_t index);
    void setStatus(std::size_t index, const FileManagerStatus& status);

    const MenuExtension::Places m_places;
    const std::chrono::milliseconds m_patience;
    const std::chrono::milliseconds m_pause;
    std::array<FileManagerStatus, MenuExtension::fileManagers.size()> m_statuses;
    std::array<QTimer, MenuExtension::fileManagers.size()> m_waits;
    QTimer m_next;
    bool m_follows = false;
    std::shared_ptr<MenuExtension::BridgeStatuses> m_found;
    std::unique_ptr<QThread> m_looking;
};

} // namespace ExtensionsTool
