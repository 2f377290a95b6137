#pragma once

#include <QKeyEvent>
#include <QString>

#include <functional>
#include <optional>

namespace LinuxDesktop {

/// Finds the row of a list whose title begins with what a person types. Letters that follow each other within a
/// second belong together; the same letter over and over leads from one row that begins with it to the next. Main
/// thread.
class TypeAhead {
public:
    /// The row that the key leads to from the current one, counted from 0; nothing where the key is no letter or no
    /// title begins so. A row without a title is never found.
    [[nodiscard]] std::optional<int> find(const QKeyEvent& pressed, int current, int rows,
                                          const std::function<QString(int row)>& titleOf);

private:
    QString m_typed;
    quint64 m_last = 0;
};

} // namespace LinuxDesktop
