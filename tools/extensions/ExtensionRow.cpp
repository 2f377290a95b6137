#include "extensions/ExtensionRow.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace ExtensionsTool {

namespace {

constexpr int iconExtent = 48;

StatusDot::Tone toneOf(const ExtensionStatus& status)
{
    if (needsAttention(status))
        return StatusDot::Tone::Attention;
    return isOn(status) ? StatusDot::Tone::Good : StatusDot::Tone::Quiet;
}

} // namespace

ExtensionRow::ExtensionRow(ExtensionControl& control, const QIcon& icon, QWidget* parent)
    : QWidget(parent), m_control(control)
{
    const Extension& extension = control.extension();
    auto* picture = new QLabel(this);
    picture->setPixmap(icon.pixmap(QSize(iconExtent, iconExtent), devicePixelRatioF()));
    LinuxDesktop::setAccessibleRole(*picture, QAccessible::NoRole);
    auto* title = makeHeading(extension.title, this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.1);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    auto* explanation = makeText(extension.explanation, this);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    // Made in the order in which they are read.
    m_state = new StatusLine(this);
    m_switch = new Switch(this);
    m_switch->setAccessibleName(extension.title);
    LinuxDesktop::tieWords(*explanation, *m_switch);
    m_state->setSubject(*m_switch);
    layOut(picture, title, explanation);

    connect(m_switch, &Switch::asked, &m_control, [this](bool on) {
        // The last wish is carried out before there is another.
        if (m_control.status().activity != ExtensionStatus::Activity::None)
            return;
        if (on)
            m_control.switchOn();
        else
            m_control.switchOff();
    });
    connect(&m_control, &ExtensionControl::changed, this, [this] { showStatus(); });
    showStatus();
}

void ExtensionRow::layOut(QLabel* picture, QLabel* title, QLabel* explanation)
{
    auto* texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(title);
    texts->addWidget(explanation);
    texts->addSpacing(6);
    texts->addWidget(m_state);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 16, 16, 16);
    row->setSpacing(16);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(m_switch, 0, Qt::AlignVCenter);
}

void ExtensionRow::showStatus()
{
    const ExtensionStatus& status = m_control.status();
    m_state->tell(toneOf(status), inWords(status));
    m_switch->setOn(isOn(status));
    m_switch->setEnabled(status.hasBus);
}

} // namespace ExtensionsTool
