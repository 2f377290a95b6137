#pragma once

#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/duplicates/Groups.h"
#include "extension/actions/duplicates/Removal.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

class QWidget;

namespace MenuExtension::Duplicates {

/// What the window shows beyond what all finders have in common. Called in the window's thread where nothing else is
/// said.
struct Presentation {
    /// A column of the list of a group's items, after name, folder, size and date.
    struct Column {
        QString title;
        std::function<QString(const Item&)> text;
    };
    /// A rule of the finder's own, which comes first among the rules.
    struct Proposal {
        /// As in the list of rules: "Keep the best picture".
        QString title;
        std::function<bool(const Item& one, const Item& other)> isBetter;
        /// Why the first is the one to keep of these, which begin with it: "most pixels".
        std::function<QString(const std::vector<Item>& items)> why;
    };

    /// Of the window, also said where there is nothing to show: "Duplicate Files".
    QString title;
    /// "1 file", "3 files".
    std::function<QString(qulonglong count)> counted;
    /// In the place of the list while nothing was found, when the search has ended: "No two files are the same."
    QString nothingFound;
    std::vector<Column> columns = {};
    std::optional<Proposal> proposal = {};
    /// Makes what stands over the list: choices that the finder reads. `searchAgain` stops the search and starts it
    /// anew; what was found goes when the first of the new is there, or at its end. May be empty.
    std::function<QWidget*(QWidget* parent, const std::function<void()>& searchAgain)> makeControl = {};
    /// A picture of the file that fits into `pixels`; null for none. In a thread of its own, one at a time. Without
    /// this, what is a picture by its name is read, and texts are shown by their beginning.
    std::function<QImage(const std::string& path, QSize pixels, const std::stop_token& stop)> picture = {};
    /// Whether the items of a group look different, so that the preview shows them side by side.
    bool isSideBySide = false;
    /// What has to hold when an item is removed.
    RemovalMeans removal;
};

} // namespace MenuExtension::Duplicates
