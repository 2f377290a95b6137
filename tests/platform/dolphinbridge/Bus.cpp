#include "Bus.h"

#include <QFile>

#include <csignal>
#include <sys/prctl.h>

Bus::Bus()
{
    const QString path = m_folder.filePath(QStringLiteral("bus.conf"));
    QFile configuration(path);
    const QByteArray socket = m_folder.filePath(QStringLiteral("bus")).toUtf8();
    // As much in a message as in a person's session.
    const QByteArray text = "<busconfig><type>session</type><listen>unix:path=" + socket + R"(</listen>
  <policy context="default">
    <allow send_destination="*"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
</busconfig>
)";
    if (!configuration.open(QIODevice::WriteOnly) || configuration.write(text) != text.size())
        qFatal("cannot write the bus's configuration");
    configuration.close();
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + path,
                                                   QStringLiteral("--print-address"), QStringLiteral("--nofork")});
    if (!m_daemon.waitForReadyRead(10'000))
        qFatal("dbus-daemon did not start");
    m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
}

Bus::~Bus()
{
    kill();
}

void Bus::kill()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void Bus::stop() const
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP);
}

void Bus::goOn() const
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGCONT);
}

void Bus::Daemon::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}
