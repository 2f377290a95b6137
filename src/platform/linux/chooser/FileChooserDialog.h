#pragma once

#include "platform/linux/chooser/ChooserMemory.h"
#include "platform/linux/chooser/FileKinds.h"
#include "platform/linux/chooser/FolderListing.h"
#include "platform/linux/look/Dialog.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPoint;
class QPushButton;
class QTimer;
class QToolButton;

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
    /// Where it opens; see NS::OpenPanel::setDirectoryURL. When not set, the folder that was chosen from last, or the
    /// home folder.
    std::optional<std::string> directory;
    Refusal refusal = [](const std::string&) { return QString(); };
    /// Asked before a folder is gone to. It waits long enough for a disk to wake up.
    std::shared_ptr<FileKinds> kinds =
        std::make_shared<FileKinds>(recallFileKind, lookUpFileKind, std::chrono::seconds(1));
};

/// The window that files are chosen in. Accepted, it has chosen at least one item. Main thread.
class FileChooserDialog : public Dialog {
    Q_OBJECT

public:
    explicit FileChooserDialog(FileChooserSettings settings, QWidget* parent = nullptr);

    /// The chosen items' paths, once accepted.
    [[nodiscard]] const std::vector<std::string>& chosen() const { return m_chosen; }

    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Trail { New, Back, Forward };

    void build();
    QHBoxLayout* makePathRow();
    void connectParts();
    void connectKeys();
    void openAtStart();
    void remember(int result) const;

    [[nodiscard]] bool answers(const std::string& path);
    void await(const std::string& path, std::function<void()> then);
    void visit(const std::string& folder, const std::string& selected = {}, Trail trail = Trail::New);
    void retrace(Trail trail);
    void updateTrail();
    void showFolder(const std::string& folder, const std::string& selected = {});
    void goUp();
    void goTo(const std::string& path);
    void openEntry(const FileEntry& entry);
    void enterEntry(const FileEntry& entry);
    [[nodiscard]] FolderListing readShownFolder() const;
    void refresh();
    void tellVanished(const std::string& name);
    void toggleHiddenFiles();
    void makeFolder();
    void showMenu(const QPoint& at);

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
    /// The folders that were shown before, and those that were gone back from; the nearest at the end.
    std::vector<std::string> m_back;
    std::vector<std::string> m_forward;
    bool m_selectionVanished = false;
    const ChooserMemory m_memory = ChooserMemory::recall();
    QSize m_firstSize;
    /// What to do once a folder answers.
    std::function<void()> m_awaited;

    QLabel* m_message;
    LocationField* m_location;
    PlacesList* m_places;
    FileList* m_list;
    QLabel* m_notice;
    QPushButton* m_cancelButton;
    QPushButton* m_confirmButton;
    QToolButton* m_backButton;
    QToolButton* m_forwardButton;
    QToolButton* m_upButton;
    FolderWatch* m_watch;
    QTimer* m_refreshTimer;
    QTimer* m_awaitTimer;
};

} // namespace LinuxDesktop
