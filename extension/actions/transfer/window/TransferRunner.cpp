#include "extension/actions/transfer/window/TransferRunner.h"

#include "extension/actions/support/Answer.h"
#include "extension/actions/support/FileManager.h"
#include "extension/actions/support/Programs.h"
#include "extension/actions/transfer/window/TransferWords.h"
#include "extension/actions/window/PerformInWindow.h"
#include "platform/URL.h"
#include "platform/linux/chooser/FileChooserDialog.h"
#include "platform/linux/system/ParentFolder.h"

#include <QApplication>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <utility>

namespace MenuExtension::Transfers {

namespace {

using namespace std::chrono_literals;

constexpr auto untilItShows = 500ms;
constexpr auto betweenLooks = 100ms;
/// Nobody wants it back after that, and what was replaced takes room until then.
constexpr auto undoableFor = 10min;

Request ofOutermost(Request request)
{
    request.paths = outermost(request.paths);
    return request;
}

} // namespace

Outcome performTransfer(const Request& request, Kind kind)
{
    return performWithToolkit([&](LinuxDesktop::SessionBus& bus) {
        QApplication::setQuitOnLastWindowClosed(false);
        return std::make_unique<TransferRunner>(request, kind, bus);
    });
}

TransferRunner::TransferRunner(const Request& request, Kind kind, LinuxDesktop::SessionBus& bus)
    : m_request(ofOutermost(request)), m_isMove(kind == Kind::Move), m_work(m_request), m_notice(bus.connection())
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(untilItShows);
    connect(&m_delay, &QTimer::timeout, this, &TransferRunner::showWindow);
    m_drawing.setInterval(betweenLooks);
    connect(&m_drawing, &QTimer::timeout, this, [this] { m_window.advance(m_work.progress()); });
    m_patience.setSingleShot(true);
    m_patience.setInterval(undoableFor);
    connect(&m_patience, &QTimer::timeout, this, &TransferRunner::quitUnlessShown);
    connectWork();
    connectEnd();
    if (m_request.target.empty())
        chooseTarget();
    else
        begin(m_request.target);
}

TransferRunner::~TransferRunner() = default;

void TransferRunner::connectWork()
{
    connect(&m_work, &TransferWork::conflictMet, this, [this](const Conflict& conflict) {
        m_delay.stop();
        m_window.ask(conflict);
        showWindow();
    });
    connect(&m_work, &TransferWork::problemsFound, this, [this](const Problems& problems) {
        m_delay.stop();
        m_window.askToGoOn(Words::problems(m_isMove, problems));
        showWindow();
    });
    connect(&m_window, &TransferWindow::decided, this, [this](const Decision& decision) {
        m_window.showProgress(m_words);
        m_work.answer(decision);
    });
    connect(&m_window, &TransferWindow::wentOn, this, [this] {
        m_window.showProgress(m_words);
        m_work.goOn();
    });
    connect(&m_window, &TransferWindow::cancelled, this, &TransferRunner::cancel);
    connect(&m_work, &TransferWork::finished, this, &TransferRunner::end);
    connect(&m_work, &TransferWork::undone, this, &TransferRunner::endUndo);
}

void TransferRunner::connectEnd()
{
    connect(&m_notice, &DoneNotice::undoAsked, this, &TransferRunner::undo);
    connect(&m_window, &TransferWindow::undoAsked, this, &TransferRunner::undo);
    connect(&m_notice, &DoneNotice::showAsked, this, &TransferRunner::showItem);
    connect(&m_window, &TransferWindow::showAsked, this, &TransferRunner::showItem);
    // Not before: a window that goes and comes again does not get the keyboard back everywhere.
    connect(&m_notice, &DoneNotice::shown, &m_window, &QWidget::hide);
    connect(&m_notice, &DoneNotice::closed, this, &TransferRunner::quitUnlessShown);
    connect(&m_notice, &DoneNotice::notShown, this, [this] {
        m_window.showEnd(m_words, {}, m_work.canBeUndone(), m_work.canBeUndone());
        showWindow();
    });
    connect(&m_window, &TransferWindow::closed, this, &TransferRunner::quit);
}

void TransferRunner::chooseTarget()
{
    LinuxDesktop::FileChooserSettings settings;
    settings.message = (m_isMove ? tr("Choose the folder to move %1 to.") : tr("Choose the folder to copy %1 to."))
                           .arg(Words::items(m_request.paths));
    settings.prompt = m_isMove ? tr("Move") : tr("Copy");
    settings.canChooseFiles = false;
    settings.canChooseDirectories = true;
    settings.directory = LinuxDesktop::parentFolder(m_request.paths.front());
    settings.refusal = [this](const std::string& folder) { return refusalOf(folder); };
    m_chooser = std::make_unique<LinuxDesktop::FileChooserDialog>(std::move(settings));
    connect(m_chooser.get(), &QDialog::accepted, this, [this] { begin(m_chooser->chosen().front()); });
    connect(m_chooser.get(), &QDialog::rejected, this, &TransferRunner::quit);
    m_chooser->show();
    m_chooser->raise();
    m_chooser->activateWindow();
    m_isAnswered = true;
    answer(Outcome::done());
}

/// What can be said by the paths alone; what they lead to is looked at before anything is written.
QString TransferRunner::refusalOf(const std::string& folder) const
{
    for (const std::string& item : m_request.paths) {
        if ((folder + '/').starts_with(item + '/'))
            return Words::problem(m_isMove, {Problem::Kind::IntoItself, item});
    }
    const auto liesThere = [&](const std::string& item) { return LinuxDesktop::parentFolder(item) == folder; };
    return m_isMove && std::ranges::all_of(m_request.paths, liesThere)
               ? Words::problem(true, {Problem::Kind::AlreadyThere, m_request.paths.front()})
               : QString();
}

void TransferRunner::begin(const std::string& target)
{
    m_target = target;
    m_words = Words::doing(m_isMove, m_request.paths, m_target);
    showProgressLater(m_words);
    m_work.start(m_isMove, m_target);
}

void TransferRunner::showProgressLater(const QString& what)
{
    m_window.showProgress(what);
    m_delay.start();
    m_drawing.start();
}

void TransferRunner::showWindow()
{
    if (!m_window.isVisible()) {
        m_window.show();
        m_window.raise();
        m_window.activateWindow();
    }
    m_isAnswered = true;
    answer(Outcome::done());
}

/// What is done so far is told when the work has ended, which is soon.
void TransferRunner::cancel()
{
    m_delay.stop();
    m_window.hide();
    m_work.cancel();
    if (!m_work.isRunning())
        quit();
}

void TransferRunner::end()
{
    m_delay.stop();
    m_drawing.stop();
    const Result& result = m_work.result();
    const QStringList problems = Words::problems(m_isMove, result.problems);
    m_words = Words::done(m_isMove, m_request.paths, m_target, result);
    if (result.isCancelled && result.done == 0 && !result.isInPart) {
        quit();
    } else if (result.isRefused && !m_isAnswered) {
        // Whoever asked tells it.
        answer(Outcome::failed(problems.join(u' ').left(1000).toStdString()));
        quit();
    } else if (!result.problems.empty()) {
        m_window.showEnd(result.isRefused ? (m_isMove ? tr("Nothing was moved.") : tr("Nothing was copied."))
                                          : m_words,
                         problems, m_work.canBeUndone(), m_work.canBeUndone());
        showWindow();
    } else if (result.done == 0 && !result.isInPart) {
        quit();
    } else {
        tell(m_isMove ? tr("Moved") : tr("Copied"));
    }
}

void TransferRunner::tell(const QString& title)
{
    m_notice.show(
        title, m_words,
        {.undo = m_work.canBeUndone(), .show = !m_work.firstPlaced().empty(), .stays = m_work.hasReplaced()});
    answer(Outcome::done());
    m_isAnswered = true;
    m_patience.start();
}

void TransferRunner::undo()
{
    if (!m_work.canBeUndone() || m_work.isRunning())
        return;
    showProgressLater(tr("Putting everything back"));
    m_work.undo();
}

void TransferRunner::endUndo()
{
    m_delay.stop();
    m_drawing.stop();
    const Result& result = m_work.result();
    if (result.problems.empty()) {
        quit();
        return;
    }
    m_window.showEnd(tr("Not everything could be put back."), Words::problems(m_isMove, result.problems), false,
                     false);
    showWindow();
}

void TransferRunner::showItem()
{
    // It may have to be started first.
    QThreadPool::globalInstance()->start([item = m_work.firstPlaced(), caller = m_request.caller] {
        if (FileManager::showItem(item, caller) == FileManager::Shown::Nobody) {
            const auto folder = NS::URL::fileURLWithPath(LinuxDesktop::parentFolder(item)).absoluteString();
            static_cast<void>(Programs::start({"xdg-open", folder}));
        }
    });
}

void TransferRunner::quitUnlessShown()
{
    if (!m_window.isVisible() && !m_work.isRunning())
        quit();
}

void TransferRunner::quit()
{
    answer(Outcome::done());
    QCoreApplication::quit();
}

} // namespace MenuExtension::Transfers
