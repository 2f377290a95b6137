#include "extensions/StatusLine.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace ExtensionsTool {

QLabel* makeText(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // By itself it would go by the direction of its text, away from what it belongs to.
    if (parent->layoutDirection() == Qt::RightToLeft)
        label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    return label;
}

StatusLine::StatusLine(QWidget* parent) : QWidget(parent), m_dot(new StatusDot(this)), m_words(makeText({}, this))
{
    // Words that name a file may be copied.
    m_words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The dot stays with the first line of the words.
    auto* dot = new QVBoxLayout;
    dot->addSpacing((fontMetrics().height() - m_dot->height()) / 2);
    dot->addWidget(m_dot);
    dot->addStretch(1);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addLayout(dot);
    line->addWidget(m_words, 1);
}

void StatusLine::tell(StatusDot::Tone tone, const QString& words)
{
    m_dot->setTone(tone);
    m_words->setText(words);
}

} // namespace ExtensionsTool
