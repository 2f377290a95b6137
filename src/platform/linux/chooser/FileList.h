#pragma once

#include "platform/linux/chooser/FolderModel.h"

#include <QTreeView>

#include <string>
#include <vector>

class QLabel;

namespace LinuxDesktop {

/// The list of one folder's items: its rows, its words where there are none, its keys. Main thread.
class FileList : public QTreeView {
    Q_OBJECT

public:
    explicit FileList(QWidget* parent = nullptr);

    /// Files that are not enabled are listed, but cannot be selected.
    void setFilesEnabled(bool enabled) { m_model->setFilesEnabled(enabled); }
    /// Shows a folder's items from the top with `selected` selected and in sight, where it is among them.
    void showListing(FolderListing listing, const std::string& selected);
    /// Shows the same folder's items anew; what is selected stays so and the list stays where it is scrolled to.
    /// Returns the selected items that are gone.
    std::vector<std::string> refreshListing(FolderListing listing);

    [[nodiscard]] std::vector<FileEntry> selectedEntries() const;

signals:
    /// Not for a refresh, which selects the same again.
    void selectionEdited();
    /// A double click on the item.
    void opened(const FileEntry& entry);
    /// Right or Alt+Down on the item.
    void entered(const FileEntry& entry);
    /// Enter.
    void confirmed();
    /// Backspace or Left.
    void upRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setListing(FolderListing listing);
    bool select(const std::string& name);
    void sizeColumns();

    FolderModel* m_model;
    QLabel* m_words;
    bool m_refreshing = false;
};

} // namespace LinuxDesktop
