#pragma once

#include <QListWidget>

#include <string>

namespace LinuxDesktop {

/// The user's own folders and the file system's root, as far as they exist. Main thread.
class PlacesList : public QListWidget {
    Q_OBJECT

public:
    explicit PlacesList(QWidget* parent = nullptr);

    /// Highlights the place that is this folder, or none.
    void setFolder(const std::string& folder);

signals:
    /// By a click, Enter or Space.
    void placeChosen(const std::string& folder);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;

private:
    void addPlace(const QString& title, const QString& iconName, const std::string& folder);
    void choose(const QListWidgetItem* item);
};

} // namespace LinuxDesktop
