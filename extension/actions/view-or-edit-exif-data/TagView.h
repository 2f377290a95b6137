#pragma once

#include "Merged.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeView;

namespace MenuExtension::Exif {

/// All that photos say, the usual first, with a search over all of it.
class TagView : public QWidget {
    Q_OBJECT

public:
    explicit TagView(QWidget* parent = nullptr);

    void showTags(const Merged& merged);

private:
    void search(const QString& text);

    QStandardItemModel m_model;
    QSortFilterProxyModel m_found;
    QLineEdit* m_search;
    QTreeView* m_tree;
    QLabel* m_nothing;
};

/// "DateTimeOriginal" as a person reads it.
[[nodiscard]] QString readableName(const std::string& tag);
/// The value, or that the photos have different ones.
[[nodiscard]] QString shownValue(const Merged& merged, const Merged::Value& value);
/// What those hear who cannot see that a value is shown as nothing.
[[nodiscard]] QString spokenValue(const QString& shown);
/// What they hear beside the name of a group.
[[nodiscard]] QString countedValues(int count);

} // namespace MenuExtension::Exif
