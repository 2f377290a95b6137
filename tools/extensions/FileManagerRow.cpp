#include "extensions/FileManagerRow.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace ExtensionsTool {

using MenuExtension::BridgeStatus;
using MenuExtension::FileManager;

namespace {

StatusDot::Tone toneOf(const FileManagerStatus& status)
{
    if (needsAttention(status))
        return StatusDot::Tone::Attention;
    return status.bridge == BridgeStatus::Loaded ? StatusDot::Tone::Good : StatusDot::Tone::Quiet;
}

} // namespace

FileManagerRow::FileManagerRow(FileManagersControl& control, std::size_t index, QWidget* parent)
    : InformationRow(parent), m_control(control), m_index(index)
{
    const QString name = nameOf(MenuExtension::fileManagers.at(index));
    // Made in the order in which they are read.
    auto* title = makeHeading(name, this);
    m_state = new StatusLine(this);
    m_state->setSubject(*this);
    m_restart = new QPushButton(tr("Restart"), this);
    m_restart->setAccessibleName(tr("Restart %1").arg(name));
    // Enter presses it as well.
    m_restart->setAutoDefault(true);
    QFont font = title->font();
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    layOut(title);

    connect(m_restart, &QPushButton::clicked, &m_control, [this] { m_control.restart(m_index); });
    connect(&m_control, &FileManagersControl::changed, this, [this] { showStatus(); });
    showStatus();
}

void FileManagerRow::layOut(QLabel* title)
{
    auto* texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(title);
    texts->addWidget(m_state);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(16);
    row->addLayout(texts, 1);
    row->addWidget(m_restart, 0, Qt::AlignVCenter);
}

void FileManagerRow::showStatus()
{
    const FileManager& manager = MenuExtension::fileManagers.at(m_index);
    const FileManagerStatus& status = m_control.status(m_index);
    const QString words = inWords(manager, status);
    m_state->tell(toneOf(status), words);
    const bool offers = offersRestart(manager, status);
    // Else the next control would have the keyboard, and a key that is still meant for this one.
    if (!offers)
        m_restart->clearFocus();
    m_restart->setVisible(offers);
    // The button tells the same.
    setFocusPolicy(offers ? Qt::NoFocus : Qt::TabFocus);
    LinuxDesktop::setAccessibleDescription(*m_restart, words);
    setVisible(isInstalled(status));
}

} // namespace ExtensionsTool
