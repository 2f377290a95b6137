#pragma once

#include "platform/linux/chooser/FolderListing.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QTimer;

namespace LinuxDesktop {

class FileList;
class FolderWatch;
class LocationField;
class PlacesList;

/// What a chooser shows and lets choose.
struct FileChooserSettings {
    /// Why the item at a path may not be chosen, in words; empty when it may.
    using Refusal = std::function<QString(const std::string& path)>;

    QString message;
    QString prompt = QStringLiteral("Open");
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool allowsMultipleSelection = false;
    HiddenFiles hiddenFiles = HiddenFiles::Left;
    /// Where it opens; see NS::OpenPanel::setDirectoryURL. The home folder when not set.
    std::optional<std::string> directory;
    Refusal refusal = [](const std::string&) { return QString(); };
};

/// The window that files are chosen in. Accepted, it has chosen at least one item. Main thread.
class FileChooserDialog : public QDialog {
    Q_OBJECT

public:
    explicit FileChooserDialog(FileChooserSettings settings, QWidget* parent = nullptr);

    /// The chosen items' paths, once accepted.
    [[nodiscard]] const std::vector<std::string>& chosen() const { return m_chosen; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void connectParts();
    void openAtStart();

    void showFolder(const std::string& folder, const std::string& selected = {});
    void goUp();
    void goTo(const std::string& path);
    void openEntry(const FileEntry& entry);
    void enterEntry(const FileEntry& entry);
    [[nodiscard]] FolderListing readShownFolder() const;
    void refresh();
    void tellVanished(const std::string& name);

    [[nodiscard]] bool canChoose(const FileEntry& entry) const;
    [[nodiscard]] bool canConfirm() const;
    void updateConfirmButton();
    void confirmByKey();
    void confirmByButton();
    void confirm();
    [[nodiscard]] bool mayBeChosen(const std::string& path) const;
    void choose(std::vector<std::string> paths);
    void refuse(const std::string& path);
    void notice(const QString& words);

    FileChooserSettings m_settings;
    std::string m_folder = "/";
    std::string m_firstFolder;
    std::string m_revealed;
    std::vector<std::string> m_chosen;
    bool m_selectionVanished = false;

    QLabel* m_message;
    LocationField* m_location;
    PlacesList* m_places;
    FileList* m_list;
    QLabel* m_notice;
    QPushButton* m_cancelButton;
    QPushButton* m_confirmButton;
    QWidget* m_upButton;
    FolderWatch* m_watch;
    QTimer* m_refreshTimer;
};

} // namespace LinuxDesktop
