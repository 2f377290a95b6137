#include "extension/actions/window/ProgressRow.h"

#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace MenuExtension {

namespace {

constexpr auto aMoment = std::chrono::milliseconds(400);
constexpr auto betweenDrawings = std::chrono::milliseconds(100);
/// The bar counts in thousandths, since a count of bytes does not fit its numbers.
constexpr int wholeBar = 1000;

} // namespace

QString remainingTimeText(std::chrono::seconds remaining)
{
    const auto seconds = remaining.count();
    if (seconds < 5)
        return ProgressRow::tr("a few seconds left");
    if (seconds < 55)
        return ProgressRow::tr("about %n seconds left", nullptr, static_cast<int>((seconds + 4) / 5 * 5));
    if (seconds < 90)
        return ProgressRow::tr("about a minute left");
    const auto minutes = (seconds + 30) / 60;
    if (minutes < 55)
        return ProgressRow::tr("about %n minutes left", nullptr, static_cast<int>(minutes));
    if (minutes < 90)
        return ProgressRow::tr("about an hour left");
    return ProgressRow::tr("about %n hours left", nullptr,
                           static_cast<int>(std::min<std::int64_t>((minutes + 30) / 60, 9999)));
}

ProgressRow::ProgressRow(QWidget* parent)
    : QWidget(parent), m_bar(new QProgressBar(this)), m_words(makeText(this)),
      m_cancel(makeButton(tr("Cancel"), this))
{
    m_bar->setTextVisible(false);
    m_words->setMinimumWidth(1);
    LinuxDesktop::tieWords(*m_words, *m_bar);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(m_bar);
    texts->addWidget(m_words);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addLayout(texts, 1);
    row->addWidget(m_cancel, 0, Qt::AlignVCenter);
    hide();

    m_delay.setSingleShot(true);
    m_delay.setInterval(aMoment);
    connect(&m_delay, &QTimer::timeout, this, [this] {
        showWhatIsKnown();
        show();
    });
    m_drawing.setInterval(betweenDrawings);
    connect(&m_drawing, &QTimer::timeout, this, &ProgressRow::showWhatIsKnown);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancel->setEnabled(false);
        emit cancelled();
    });
}

void ProgressRow::start(const QString& what)
{
    m_what = what;
    m_bar->setAccessibleName(what);
    m_text.clear();
    m_done = 0;
    m_total = 0;
    m_estimate = TimeEstimate(TimeEstimate::Clock::now());
    m_cancel->setEnabled(true);
    m_delay.start();
    m_drawing.start();
}

void ProgressRow::advance(std::uint64_t done, std::uint64_t total, const QString& words)
{
    m_done = done;
    m_total = total;
    m_text = words;
    m_estimate.advance(done, total, TimeEstimate::Clock::now());
}

void ProgressRow::finish()
{
    m_delay.stop();
    m_drawing.stop();
    hide();
}

void ProgressRow::showWhatIsKnown()
{
    m_bar->setMaximum(m_total == 0 ? 0 : wholeBar);
    if (m_total > 0)
        m_bar->setValue(static_cast<int>(static_cast<double>(std::min(m_done, m_total)) /
                                         static_cast<double>(m_total) * wholeBar));
    QString text = m_text.isEmpty() ? m_what : m_text;
    if (const auto remaining = m_total > 0 ? m_estimate.remaining() : std::nullopt)
        //: How much is done, and how long the rest takes.
        text = tr("%1 · %2").arg(text, remainingTimeText(*remaining));
    m_words->setText(text);
    LinuxDesktop::describeByWords(*m_bar);
}

} // namespace MenuExtension
