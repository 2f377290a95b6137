#include "extensions/StatusLine.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

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

QLabel* makeHeading(const QString& text, QWidget* parent)
{
    QLabel* heading = makeText(text, parent);
    LinuxDesktop::setAccessibleRole(*heading, QAccessible::Heading);
    return heading;
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

void StatusLine::setSubject(QWidget& subject)
{
    LinuxDesktop::tieWords(*m_words, subject);
}

void StatusLine::tell(StatusDot::Tone tone, const QString& words)
{
    m_dot->setTone(tone);
    const QString before = m_words->text();
    if (words == before)
        return;
    m_words->setText(words);
    if (QWidget* subject = LinuxDesktop::subjectOf(*m_words))
        LinuxDesktop::describeByWords(*subject);
    // What comes into sight is no news.
    if (isVisible() && !before.isEmpty() && !std::exchange(m_announces, true))
        QMetaObject::invokeMethod(this, &StatusLine::announceWords, Qt::QueuedConnection);
}

void StatusLine::announceWords()
{
    m_announces = false;
    if (const QAccessibleInterface* group = QAccessible::queryAccessibleInterface(parentWidget()))
        LinuxDesktop::announce(*this, tr("%1: %2").arg(group->text(QAccessible::Name), m_words->text()));
}

} // namespace ExtensionsTool
