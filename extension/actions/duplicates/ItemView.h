#pragma once

#include <QList>
#include <QTreeView>

namespace MenuExtension::Duplicates {

/// A list of items with several columns, in which the space bar operates the box of the current item. Main thread.
class ItemView : public QTreeView {
    Q_OBJECT

public:
    explicit ItemView(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
};

} // namespace MenuExtension::Duplicates
