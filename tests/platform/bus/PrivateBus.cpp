#include "PrivateBus.h"

#include <QFile>

#include <csignal>
#include <sys/prctl.h>

PrivateBus::PrivateBus()
{
    QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
    const QByteArray text = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=)" + socketPath() +
                            R"(</listen>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_replies_per_connection">50000</limit>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_message_size">1000000000</limit>
</busconfig>
)";
    if (!configuration.open(QIODevice::WriteOnly) || configuration.write(text) != text.size())
        qFatal("cannot write the bus's configuration");
    configuration.close();

    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // No test leaves a bus behind, not even one that crashes.
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + configuration.fileName(),
                                                   QStringLiteral("--print-address"), QStringLiteral("--nofork")});
    if (!m_daemon.waitForReadyRead(10'000))
        qFatal("dbus-daemon did not start");
    m_address = m_daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address);
}

PrivateBus::~PrivateBus()
{
    kill();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

void PrivateBus::kill()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QByteArray PrivateBus::socketPath() const
{
    return m_folder.filePath(QStringLiteral("bus")).toUtf8();
}
