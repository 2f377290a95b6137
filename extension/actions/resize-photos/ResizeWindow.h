#pragma once

#include "PreviewWork.h"
#include "ResizeWork.h"

#include <QStringListModel>
#include <QTimer>
#include <QWidget>

class QLabel;
class QListView;
class QPushButton;

namespace MenuExtension {
class ProgressRow;
}

namespace MenuExtension::Resizing {

class ComparePane;
class SizeRow;
class TargetRows;

/// The window of the action: what becomes of the photos, shown on one of them before it is done.
class ResizeWindow : public QWidget {
    Q_OBJECT

public:
    /// The request outlives it.
    explicit ResizeWindow(const Request& request);

private:
    void layOut();
    [[nodiscard]] std::size_t shownPhoto() const;
    [[nodiscard]] QString nameOf(std::size_t photo) const;
    void preview();
    void resizeAll();
    void showProgress(const ResizeWork::Progress& progress);
    void showEnd(const ResizeWork::Progress& progress);
    void say(const QString& words);
    void setBusy(bool busy);

    const Request& m_request;
    QStringListModel m_names;
    QStringListModel m_failureLines;
    QLabel* m_heading;
    QListView* m_photos;
    ComparePane* m_pane;
    SizeRow* m_size;
    QWidget* m_choices;
    TargetRows* m_target = nullptr;
    QLabel* m_result;
    QListView* m_failures = nullptr;
    QPushButton* m_resize = nullptr;
    ProgressRow* m_progress = nullptr;
    /// So that each digit of a number does not start a preview.
    QTimer m_settled;
    PreviewWork m_previews;
    ResizeWork m_work;
};

} // namespace MenuExtension::Resizing
