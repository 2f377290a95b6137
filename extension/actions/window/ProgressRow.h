#pragma once

#include "extension/actions/window/TimeEstimate.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace MenuExtension {

/// A bar that tells how far a work has come, with words, the time that is left, and a button that ends it. It shows
/// itself when the work takes more than a moment, so that short work does not flicker. Main thread.
class ProgressRow : public QWidget {
    Q_OBJECT

public:
    explicit ProgressRow(QWidget* parent = nullptr);

    /// Work begins; its end is not known until advance() says so. `what` is its name: "Comparing files".
    void start(const QString& what);
    /// So much of `total` is done, in any unit; no total is an end that is not known. `words` say it for people:
    /// "3 of 40 files". Cheap: what was said before is drawn at most ten times a second.
    void advance(std::uint64_t done, std::uint64_t total, const QString& words);
    /// The work has ended; the row goes.
    void finish();

signals:
    /// The button was pressed. It stays off until the next start().
    void cancelled();

private:
    void showWhatIsKnown();

    QProgressBar* m_bar;
    QLabel* m_words;
    QPushButton* m_cancel;
    QTimer m_delay;
    QTimer m_drawing;
    TimeEstimate m_estimate{TimeEstimate::Clock::now()};
    std::uint64_t m_done = 0;
    std::uint64_t m_total = 0;
    QString m_what;
    QString m_text;
};

/// "about 2 minutes left", rounded as people say it.
[[nodiscard]] QString remainingTimeText(std::chrono::seconds remaining);

} // namespace MenuExtension
