#include "extensions/LackingActionsSection.h"

#include "extensions/InformationRow.h"
#include "extensions/StatusLine.h"

#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace ExtensionsTool {

namespace {

constexpr std::chrono::seconds pause{2};

QWidget* makeRow(const LackingAction& action, QWidget* parent)
{
    auto* const row = new InformationRow(parent);
    auto* const title = makeHeading(action.title, row);
    QFont font = title->font();
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    auto* const state = new StatusLine(row);
    state->setSubject(*row);
    state->tell(StatusDot::Tone::Attention, inWords(action));
    auto* const texts = new QVBoxLayout(row);
    texts->setContentsMargins(16, 12, 16, 12);
    texts->setSpacing(3);
    texts->addWidget(title);
    texts->addWidget(state);
    return row;
}

} // namespace

LackingActionsSection::LackingActionsSection(std::string programs, QWidget* parent)
    : QWidget(parent), m_programs(std::move(programs))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    auto* const heading = makeHeading(tr("Actions that are in no menu:"), this);
    heading->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(heading);
    setVisible(false);

    connect(&m_next, &QTimer::timeout, this, [this] {
        if (window()->isVisible())
            look();
    });
    m_next.start(pause);
    look();
}

void LackingActionsSection::look()
{
    if (auto lacking = lackingActions(m_programs); lacking != m_shown) {
        show(lacking);
        m_shown = std::move(lacking);
    }
}

void LackingActionsSection::show(const std::vector<LackingAction>& lacking)
{
    delete std::exchange(m_card, nullptr);
    setVisible(!lacking.empty());
    if (lacking.empty())
        return;
    m_card = new LinuxDesktop::Card(this);
    auto* const rows = new QVBoxLayout(m_card);
    rows->setContentsMargins(0, 4, 0, 4);
    rows->setSpacing(0);
    for (const LackingAction& action : lacking)
        rows->addWidget(makeRow(action, m_card));
    layout()->addWidget(m_card);
}

} // namespace ExtensionsTool
