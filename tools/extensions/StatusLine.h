#pragma once

#include "extensions/StatusDot.h"

#include <QLabel>
#include <QWidget>

namespace ExtensionsTool {

/// A text of several lines where it needs them, without markup, at the side where the parent's rows begin.
[[nodiscard]] QLabel* makeText(const QString& text, QWidget* parent);

/// A text that is the name of the group that it lies in.
[[nodiscard]] QLabel* makeHeading(const QString& text, QWidget* parent);

/// How things stand with something, in words, and a dot in the colour that goes with them.
class StatusLine : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// Has the words describe a control, or the group, to assistive programs.
    void setSubject(QWidget& subject);
    /// Words that take the place of others are said to those who do not see them, after the name of the group; of
    /// several at once the last.
    void tell(StatusDot::Tone tone, const QString& words);

private:
    void announceWords();

    StatusDot* m_dot;
    QLabel* m_words;
    bool m_announces = false;
};

} // namespace ExtensionsTool
