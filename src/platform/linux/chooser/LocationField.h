#pragma once

#include "platform/linux/chooser/FileKinds.h"
#include "platform/linux/chooser/FolderListing.h"

#include <QLineEdit>

#include <optional>
#include <string>

class QStringListModel;

namespace LinuxDesktop {

/// Shows the folder's path and takes another. Names are completed while typing; Tab takes over what all the
/// proposals have in common. Main thread.
class LocationField : public QLineEdit {
    Q_OBJECT

public:
    /// `kinds` must outlive the field.
    LocationField(HiddenFiles hidden, FileKinds& kinds, QWidget* parent);

    void setFolder(const std::string& folder);
    /// Which names are proposed.
    void setHiddenFiles(HiddenFiles hidden);
    /// Takes the keyboard, with `start` typed in the place of the folder.
    void startPath(const QString& start);
    /// Whether the text is no longer the folder's path.
    [[nodiscard]] bool isEdited() const;
    /// The path that the text stands for. It need not exist. Reads folders.
    [[nodiscard]] std::string path() const;

signals:
    /// The user confirmed a path by Enter. It need not exist.
    void pathEntered(const std::string& path);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What the text says byte by byte.
    [[nodiscard]] std::string literalPath(const QString& typed) const;
    /// What a person means by the text. Nothing where the share that it is on does not answer.
    [[nodiscard]] std::optional<std::string> pathOf(const QString& typed) const;
    void propose();
    [[nodiscard]] QString commonPart(Qt::CaseSensitivity sensitivity) const;
    bool completeCommonPart();

    HiddenFiles m_hidden;
    FileKinds& m_kinds;
    std::string m_folder;
    QStringListModel* m_proposals;
    /// As it was typed; nothing once the proposals are of another folder.
    std::optional<QString> m_proposalsFolder;
};

} // namespace LinuxDesktop
