#pragma once

#include "PhotoWork.h"

#include <QItemSelection>
#include <QStringListModel>
#include <QTimer>
#include <QWidget>

#include <set>

class QLabel;
class QListView;
class QTabWidget;

namespace MenuExtension {
class ProgressRow;
}

namespace MenuExtension::Exif {

class EditForm;
class TagView;

/// The window of the action: the photos, what they say, and the form to change it.
class ExifWindow : public QWidget {
    Q_OBJECT

public:
    /// The request outlives it.
    explicit ExifWindow(const Request& request);

protected:
    /// Not before the person has agreed to lose what was typed.
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    [[nodiscard]] std::vector<std::size_t> selected() const;
    /// What was said of others goes, and what was typed, unless the person wants to keep it.
    void readSelected();
    /// Asks where something was typed that is not saved.
    [[nodiscard]] bool mayDiscard();
    void read();
    void save(const Edits& edits);
    /// What else was typed is saved with it.
    void askToRemove(Edits edits);
    void showProgress(const PhotoWork::Progress& progress);
    void showRead(const PhotoWork::Progress& progress);
    void showSaved(const PhotoWork::Progress& progress);
    void say(const QString& words);
    /// Beside those that are shown; a photo is there once.
    void addFailures(const PhotoWork::Failures& failures);
    void clearResult();

    const Request& m_request;
    QStringListModel m_names;
    QStringListModel m_failureLines;
    std::set<std::size_t> m_failed;
    QListView* m_photos;
    QLabel* m_heading;
    QTabWidget* m_pages;
    TagView* m_tags;
    EditForm* m_form;
    QLabel* m_result;
    QListView* m_failures;
    ProgressRow* m_progress;
    /// So that going through the list does not read each photo on the way.
    QTimer m_settled;
    /// Those that are shown.
    QItemSelection m_shown;
    QModelIndex m_current;
    Merged m_merged;
    PhotoWork m_work;
};

} // namespace MenuExtension::Exif
