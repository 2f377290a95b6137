#include "extensions/FileManagersControl.h"

#include "extension/filemanagers/Installed.h"
#include "extensions/StartDetached.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace ExtensionsTool {

using namespace std::chrono_literals;
using MenuExtension::fileManagers;

namespace {

/// Between two looks while somebody waits for a file manager to close.
constexpr auto shortPause = 250ms;
/// Which nobody notices, before there is a window.
constexpr auto moment = 100ms;
/// For a look that is under way at the end.
constexpr auto endPatience = 1s;

} // namespace

FileManagersControl::FileManagersControl(MenuExtension::Places places, std::chrono::milliseconds patience,
                                         std::chrono::milliseconds pause)
    : m_places(std::move(places)), m_patience(patience), m_pause(pause)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] { look(); });
    for (std::size_t index = 0; index < m_waits.size(); ++index) {
        QTimer& wait = m_waits.at(index);
        wait.setSingleShot(true);
        connect(&wait, &QTimer::timeout, this, [this, index] { giveUp(index); });
    }
    look();
    if (m_looking->wait(QDeadlineTimer(moment)))
        takeFound();
}

FileManagersControl::~FileManagersControl()
{
    if (m_looking && !m_looking->wait(QDeadlineTimer(endPatience)))
        static_cast<void>(m_looking.release());
}

void FileManagersControl::follow()
{
    m_follows = true;
    look();
}

void FileManagersControl::rest()
{
    m_follows = false;
    m_next.stop();
}

/// In the background: a folder in PATH may be on a share whose server is gone.
void FileManagersControl::look()
{
    if (m_looking)
        return;
    m_found = std::make_shared<MenuExtension::BridgeStatuses>();
    m_looking.reset(
        QThread::create([places = m_places, found = m_found] { *found = MenuExtension::bridgeStatuses(places); }));
    connect(m_looking.get(), &QThread::finished, this, [this] { takeFound(); });
    m_looking->start();
}

void FileManagersControl::takeFound()
{
    // It may have been taken already, and the next look be under way.
    if (!m_looking || !m_looking->isFinished())
        return;
    m_looking.reset();
    for (std::size_t index = 0; index < m_statuses.size(); ++index) {
        FileManagerStatus status = m_statuses.at(index);
        if (std::exchange(status.bridge, m_found->at(index)) != status.bridge)
            status.trouble.clear();
        if (!needsRestart(status.bridge))
            status.isClosing = false;
        setStatus(index, status);
    }
    lookLater();
}

void FileManagersControl::lookLater()
{
    if (m_follows)
        m_next.start(std::ranges::any_of(m_statuses, &FileManagerStatus::isClosing) ? shortPause : m_pause);
}

void FileManagersControl::restart(std::size_t index)
{
    FileManagerStatus status = m_statuses.at(index);
    if (status.isClosing || !offersRestart(fileManagers.at(index), status))
        return;
    // The program that was found, whether PATH has it or not.
    const auto program = programOf(fileManagers.at(index), m_places);
    QStringList arguments;
    for (const std::string& word : quitCommand(fileManagers.at(index)))
        arguments.append(QString::fromStdString(word));
    arguments.removeFirst();
    status.isClosing = program && startDetached(QFile::decodeName(program->c_str()), arguments);
    status.trouble = status.isClosing ? QString() : tr("It could not be asked to close.");
    if (status.isClosing)
        m_waits.at(index).start(m_patience);
    setStatus(index, status);
    lookLater();
}

void FileManagersControl::giveUp(std::size_t index)
{
    FileManagerStatus status = m_statuses.at(index);
    status.isClosing = false;
    status.trouble = tr("It was asked to close, but it is still running.");
    setStatus(index, status);
}

void FileManagersControl::setStatus(std::size_t index, const FileManagerStatus& status)
{
    if (!status.isClosing)
        m_waits.at(index).stop();
    if (std::exchange(m_statuses.at(index), status) != status)
        emit changed();
}

} // namespace ExtensionsTool
