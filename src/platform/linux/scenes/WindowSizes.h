#pragma once

#include <QSize>
#include <QString>

#include <optional>

class QScreen;

/// The sizes that a person has given to windows, those on each screen apart. They are kept in a file of the program's
/// own, `orvik-menu/window-sizes` in the folder for the state of programs. Where that cannot be read, or holds
/// something else, nothing is remembered; where it cannot be written, nothing is kept. Main thread.
namespace LinuxDesktop::WindowSizes {

[[nodiscard]] std::optional<QSize> remembered(const QString& window, const QScreen& screen);
/// `window` is one word.
void remember(const QString& window, const QScreen& screen, QSize size);

} // namespace LinuxDesktop::WindowSizes
