#pragma once

#include <QWidget>

namespace LinuxDesktop {

/// What a screen shows: a column that stays as narrow as texts are read in, however wide the window is. Who holds it
/// gives it the middle. Main thread.
class Page : public QWidget {
    Q_OBJECT

public:
    /// Between the edge of a window and what it shows.
    static constexpr int margin = 16;

    explicit Page(QWidget* parent = nullptr);

    /// As wide as the column may be.
    [[nodiscard]] QSize sizeHint() const override;

    /// Where the content of a page begins in a window of a width.
    [[nodiscard]] static int contentStart(int windowWidth);
};

} // namespace LinuxDesktop
