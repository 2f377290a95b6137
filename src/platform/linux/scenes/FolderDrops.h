#pragma once

#include "platform/linux/scenes/DroppedFolders.h"

#include <QWidget>

namespace LinuxDesktop {

/// Has a page take folders that are dropped on it, as long as no panel is in front of its window. What else is
/// dropped is refused in an alert. Belongs to the page. Main thread.
class FolderDrops : public QObject {
    Q_OBJECT

public:
    /// `taken` gets the folders of a drop, one at least, and those only that may be used.
    FolderDrops(QWidget& page, PathRefusal refusal, std::function<void(const std::vector<NS::URL>&)> taken);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(const QByteArray& addresses);
    void tell(const QStringList& refusals);

    QWidget& m_page;
    QWidget* m_frame;
    PathRefusal m_refusal;
    std::function<void(const std::vector<NS::URL>&)> m_taken;
};

} // namespace LinuxDesktop
