#pragma once

#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/duplicates/Presentation.h"

#include <QWidget>

#include <memory>

namespace MenuExtension::Duplicates {

/// The window that shows groups of duplicates while they are found, the largest saving first, and moves what a person
/// has chosen to the trash. Main thread.
class DuplicatesWindow : public QWidget {
    Q_OBJECT

public:
    /// Starts the search at once. Destroying it ends search and removal.
    DuplicatesWindow(std::unique_ptr<Finder> finder, Presentation presentation);
    ~DuplicatesWindow() override;

private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace MenuExtension::Duplicates
