#pragma once

#include "platform/linux/chooser/FolderModel.h"

#include <QTreeView>

#include <optional>
#include <string>
#include <vector>

class QLabel;

namespace LinuxDesktop {

/// The list of one folder's items: its rows, its words where there are none, its keys. Main thread.
class FileList : public QTreeView {
    Q_OBJECT

public:
    explicit FileList(QWidget* parent = nullptr);

    /// Files that are not selectable are listed and can be reached all the same.
    void setFilesSelectable(bool selectable) { m_model->setFilesSelectable(selectable); }
    /// Shows a folder's items from the top with `selected` selected and in sight, where it is among them.
    void showListing(FolderListing listing, const std::string& selected);
    /// Says which folder's items they are.
    void setFolderText(const QString& path);
    /// Shows the same folder's items anew; what is selected stays so and the list stays where it is scrolled to.
    /// Returns the selected items that are gone.
    std::vector<std::string> refreshListing(FolderListing listing);

    [[nodiscard]] std::vector<FileEntry> selectedEntries() const;
    /// The item that the user went to and that cannot be selected.
    [[nodiscard]] std::optional<FileEntry> unselectableEntry() const;
    /// Selects the item of that name, if it is there.
    bool select(const std::string& name);

signals:
    /// Not for a refresh, which selects the same again.
    void selectionEdited();
    /// A double click on the item.
    void opened(const FileEntry& entry);
    /// Right, where the text runs that way, or Alt+Down on the item.
    void entered(const FileEntry& entry);
    /// Enter.
    void confirmed();
    /// Backspace or Left.
    void upRequested();
    /// The user typed what no name starts with but a path.
    void pathStarted(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setListing(FolderListing listing);
    void describe();
    void sizeColumns();
    void showColumnsThatFit();

    FolderModel* m_model;
    QLabel* m_words;
    QString m_folderText;
    bool m_refreshing = false;
    /// Whether the user went to the current row. Focus alone makes a row current too.
    bool m_currentIsMeant = false;
    int m_sizeWidth = 0;
    int m_modifiedWidth = 0;
};

} // namespace LinuxDesktop
