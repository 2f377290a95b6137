#include "platform/linux/scenes/TypeAhead.h"

namespace LinuxDesktop {

namespace {

/// In milliseconds, by the clock of the keys: how late they are handled does not count.
constexpr quint64 longestPause = 1000;

QString typedText(const QKeyEvent& pressed)
{
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    QString text = pressed.text();
    return (pressed.modifiers() & commands) || text.isEmpty() || !text.at(0).isPrint() ? QString() : text;
}

std::optional<int> firstThatBegins(const QString& beginning, int start, int rows,
                                   const std::function<QString(int row)>& titleOf)
{
    for (int step = 0; step < rows; ++step) {
        const int row = (start + step) % rows;
        if (titleOf(row).startsWith(beginning, Qt::CaseInsensitive))
            return row;
    }
    return std::nullopt;
}

} // namespace

std::optional<int> TypeAhead::find(const QKeyEvent& pressed, int current, int rows,
                                   const std::function<QString(int row)>& titleOf)
{
    const QString text = typedText(pressed);
    if (text.isEmpty())
        return std::nullopt;
    const bool goesOn = !m_typed.isEmpty() && pressed.timestamp() - m_last <= longestPause;
    const QString typed = goesOn ? m_typed + text : text;
    std::optional<int> row = firstThatBegins(typed, goesOn ? current : current + 1, rows, titleOf);
    if (!row && goesOn && typed.count(typed.at(0), Qt::CaseInsensitive) == typed.size())
        row = firstThatBegins(text, current + 1, rows, titleOf);
    // The space bar has another purpose, unless a title goes on with it.
    if (pressed.key() == Qt::Key_Space && (!row || !goesOn))
        return std::nullopt;
    m_typed = typed;
    m_last = pressed.timestamp();
    return row;
}

} // namespace LinuxDesktop
