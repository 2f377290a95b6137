#include "extensions/ExtensionControl.h"

#include "extensions/StartDetached.h"

#include <QFileInfo>

#include <utility>

namespace ExtensionsTool {

using Activity = ExtensionStatus::Activity;

ExtensionControl::ExtensionControl(LinuxDesktop::SessionBus& bus, const AutostartFolders& folders,
                                   Extension extension, std::chrono::milliseconds patience)
    : m_extension(std::move(extension)), m_entry(folders, m_extension), m_entryWatch(m_entry.path()),
      m_companion(bus, m_extension.identifier)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] { giveUp(); });
    connect(&m_entryWatch, &AutostartWatch::changed, this, [this] { look(); });
    connect(&m_companion, &CompanionOnBus::changed, this, [this] { look(); });
    connect(&m_companion, &CompanionOnBus::refused, this,
            [this](const QString& why) { setTrouble(tr("It could not be asked to end: %1.").arg(why)); });
    look();
}

/// Brings the status up to how things stand. What went wrong before is over once they have changed.
void ExtensionControl::look()
{
    ExtensionStatus status = m_status;
    status.hasBus = m_companion.hasBus();
    status.startsAtLogIn = m_entry.isOn();
    status.runs = m_companion.isRunning();
    if (status == m_status)
        return;
    if ((status.activity == Activity::Starting && status.runs) ||
        (status.activity == Activity::Stopping && !status.runs) || !status.hasBus)
        status.activity = Activity::None;
    status.trouble.clear();
    setStatus(std::move(status));
}

void ExtensionControl::switchOn()
{
    if (!QFileInfo(m_extension.program).isExecutable())
        return setTrouble(tr("The program %1 is missing.").arg(m_extension.program));
    if (const auto failure = m_entry.switchOn())
        return setTrouble(*failure);
    look();
    if (m_status.runs)
        return;
    if (!startDetached(m_extension.program))
        return setTrouble(tr("Could not start %1.").arg(m_extension.program));
    wait(Activity::Starting);
}

void ExtensionControl::switchOff()
{
    if (const auto failure = m_entry.switchOff())
        return setTrouble(*failure);
    look();
    if (!m_status.runs)
        return;
    m_companion.quit();
    wait(Activity::Stopping);
}

void ExtensionControl::wait(Activity activity)
{
    ExtensionStatus status = m_status;
    status.activity = activity;
    status.trouble.clear();
    setStatus(std::move(status));
    m_patience.start();
}

void ExtensionControl::giveUp()
{
    if (m_status.activity == Activity::Starting)
        setTrouble(tr("It was started, but it does not answer."));
    else if (m_status.activity == Activity::Stopping)
        setTrouble(tr("It was asked to end, but it does not."));
}

void ExtensionControl::setTrouble(const QString& trouble)
{
    ExtensionStatus status = m_status;
    status.activity = Activity::None;
    status.trouble = trouble;
    setStatus(std::move(status));
}

void ExtensionControl::setStatus(ExtensionStatus status)
{
    m_status = std::move(status);
    if (m_status.activity == Activity::None)
        m_patience.stop();
    emit changed();
}

} // namespace ExtensionsTool
