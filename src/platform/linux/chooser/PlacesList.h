#pragma once

#include "platform/linux/chooser/FileKinds.h"
#include "platform/linux/chooser/Mounts.h"
#include "platform/linux/chooser/Place.h"
#include "platform/linux/system/FileDescriptor.h"

#include <QListWidget>
#include <QSocketNotifier>

#include <memory>
#include <string>
#include <vector>

namespace LinuxDesktop {

/// The user's own folders, the folder of last time, bookmarks, mounted volumes and the file system's root, as far as
/// they exist. Those whose file system does not answer are shown. Follows what is mounted. Main thread.
class PlacesList : public QListWidget {
    Q_OBJECT

public:
    explicit PlacesList(std::string lastFolder, QWidget* parent = nullptr);

    /// Highlights the place that is this folder, or none.
    void setFolder(const std::string& folder);

signals:
    /// By a click, Enter or Space.
    void placeChosen(const std::string& folder);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;

private:
    void fill();
    void addPlace(const Place& place);
    void choose(const QListWidgetItem* item);

    const std::string m_lastFolder;
    std::string m_shown;
    FileKinds m_kinds;
    std::vector<Mount> m_mounts;
    FileDescriptor m_mountTable;
    /// Goes before what it watches does.
    std::unique_ptr<QSocketNotifier> m_mountNotifier;
};

} // namespace LinuxDesktop
