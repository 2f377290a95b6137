#pragma once

#include "extensions/AutostartEntry.h"
#include "extensions/AutostartWatch.h"
#include "extensions/CompanionOnBus.h"
#include "extensions/Extension.h"
#include "extensions/ExtensionStatus.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace ExtensionsTool {

/// Switches an extension on and off, now and for the log-ins to come, and knows how things stand with it, whoever
/// changed them. Main thread.
class ExtensionControl : public QObject {
    Q_OBJECT

public:
    /// How long an extension may take to start or to end until something is wrong.
    static constexpr std::chrono::seconds longestWait{10};

    /// `bus` must outlive it.
    ExtensionControl(LinuxDesktop::SessionBus& bus, const AutostartFolders& folders, Extension extension,
                     std::chrono::milliseconds patience = longestWait);

    [[nodiscard]] const Extension& extension() const { return m_extension; }
    [[nodiscard]] const ExtensionStatus& status() const { return m_status; }

    /// Begins; status() tells how it goes on. Nothing is started or ended unless the entry could be changed first.
    void switchOn();
    void switchOff();

    /// status() is another one than before.
    Q_SIGNAL void changed();

private:
    void look();
    void wait(ExtensionStatus::Activity activity);
    void giveUp();
    void setStatus(ExtensionStatus status);
    void setTrouble(const QString& trouble);

    const Extension m_extension;
    AutostartEntry m_entry;
    AutostartWatch m_entryWatch;
    CompanionOnBus m_companion;
    QTimer m_patience;
    ExtensionStatus m_status;
};

} // namespace ExtensionsTool
