#include "platform/linux/mailing/MailMessage.h"

#include "platform/linux/mailing/Attachments.h"
#include "platform/linux/mailing/EmailPortal.h"
#include "platform/linux/mailing/MailCommand.h"
#include "platform/linux/mailing/MailText.h"
#include "platform/linux/mailing/MailableName.h"
#include "platform/linux/mailing/NotSentAlert.h"
#include "platform/linux/mailing/PreparingWindow.h"
#include "platform/linux/system/Complaint.h"

#include <QDeadlineTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace LinuxDesktop {

namespace {

using namespace std::chrono_literals;

/// Work that ends sooner is not worth a window.
constexpr std::chrono::milliseconds unannounced = 1s;
/// Work looks often enough whether it is to end, unless a read never returns.
constexpr std::chrono::milliseconds endPatience = 2s;

} // namespace

MailMessage::MailMessage(std::optional<QDBusConnection> connection, std::vector<std::string> items)
    : m_connection(std::move(connection)), m_attachments(std::make_shared<Attachments>(std::move(items)))
{
    inBackground([](Attachments& attachments) { attachments.make(); }, [this] { handOver(); });
}

MailMessage::~MailMessage()
{
    m_attachments->progress.cancelled = true;
    delete m_preparing.data();
    if (m_thread && !m_thread->wait(QDeadlineTimer(endPatience)))
        static_cast<void>(m_thread.release());
}

void MailMessage::inBackground(std::function<void(Attachments&)> work, std::function<void()> next)
{
    m_thread.reset(QThread::create([attachments = m_attachments, work = std::move(work)] { work(*attachments); }));
    connect(m_thread.get(), &QThread::finished, this, [this, next = std::move(next)] {
        m_thread.reset();
        delete m_preparing.data();
        if (const auto& failure = m_attachments->failure()) {
            if (failure->kind != AttachingFailure::Kind::Cancelled)
                NotSentAlert::show(m_attachments->items(), *failure);
        } else {
            next();
        }
        emit settled();
    });
    QTimer::singleShot(unannounced, m_thread.get(), [this] { showThatItWorks(); });
    m_thread->start();
}

void MailMessage::showThatItWorks()
{
    m_preparing = new PreparingWindow(MailText::names(m_attachments->items()), m_attachments->progress);
    m_preparing->show();
}

void MailMessage::handOver()
{
    if (m_connection)
        throughPortal();
    else
        throughCommand(QStringLiteral("there is no session bus"));
}

void MailMessage::throughPortal()
{
    m_request = EmailPortal::compose(*m_connection, m_attachments->files());
    handedOver();
    connect(m_request.get(), &PortalRequest::answered, this, [this](PortalRequest::Answer answer) {
        if (answer == PortalRequest::Answer::Failed)
            throughCommand(m_request->failure());
    });
}

void MailMessage::throughCommand(const QString& portalFailure)
{
    const auto command = Command::find(MailCommand::name);
    if (!command) {
        complain("no xdg-email, and no help from the portal for", m_attachments->items().front(),
                 portalFailure.toStdString());
        NotSentAlert::showNoMailProgram(m_attachments->items());
        return;
    }
    if (std::ranges::all_of(m_attachments->paths(), isMailablePath))
        startCommand(*command);
    else
        inBackground([](Attachments& attachments) { attachments.makeMailable(); },
                     [this, command = *command] { startCommand(command); });
}

void MailMessage::startCommand(const std::string& command)
{
    if (auto process = MailCommand::start(command, m_attachments->paths())) {
        handedOver();
        lookAfter(std::move(*process), command);
    } else {
        NotSentAlert::showNoMailProgram(m_attachments->items());
    }
}

void MailMessage::lookAfter(Command::Process started, const std::string& command)
{
    auto process = std::make_shared<Command::Process>(std::move(started));
    auto* ended = new QSocketNotifier(process->ended().get(), QSocketNotifier::Read, this);
    connect(ended, &QSocketNotifier::activated, this, [this, process, ended, command] {
        ended->setEnabled(false);
        ended->deleteLater();
        const auto status = process->exitStatus();
        if (status == 0)
            return;
        complain("the attachment was refused by", command,
                 status ? "exit status " + std::to_string(*status) : "it was killed");
        NotSentAlert::showNoMailProgram(m_attachments->items());
    });
}

void MailMessage::handedOver()
{
    if (!m_temporaryHandedOver && m_attachments->areTemporary())
        m_temporaryHandedOver = Clock::now();
}

} // namespace LinuxDesktop
