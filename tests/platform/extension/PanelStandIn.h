#pragma once

#include "platform/linux/bus/SessionBus.h"

#include <QObject>
#include <QStringList>

/// Another program on the bus, which may own the panel's name and publish folders as the panel does.
class PanelStandIn : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.orvikstudio.FinderSync")
    Q_PROPERTY(QStringList directoryURLs MEMBER m_directories)

public:
    PanelStandIn();

    void takeName();
    void releaseName();
    /// Makes the object with the property.
    void publish(const QStringList& directories);
    /// Sends the signal, to everyone or to one alone.
    void signal(const QStringList& directories, const QString& destination = {});
    /// Tells one program, in the bus's words, that this one owns the panel's name.
    void pretendOwnership(const QString& destination);

private:
    LinuxDesktop::SessionBus m_bus{"no bus"};
    QStringList m_directories;
};
