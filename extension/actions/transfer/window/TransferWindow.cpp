#include "extension/actions/transfer/window/TransferWindow.h"

#include "extension/actions/transfer/Progress.h"
#include "extension/actions/transfer/window/ItemCard.h"
#include "extension/actions/transfer/window/TransferWords.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/look/FitToScreen.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/PluralCount.h"
#include "platform/linux/text/SizeText.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace MenuExtension::Transfers {

namespace {

constexpr int initialWidth = 640;
/// To make a file takes about as long as to copy so much.
constexpr std::uint64_t bytesOfAFile = std::uint64_t{32} << 10U;

QPushButton* addButton(QHBoxLayout& row, const QString& title, QWidget* parent, bool isPrimary = false)
{
    QPushButton* const button = makeButton(title, parent, isPrimary);
    row.addWidget(button);
    return button;
}

QVBoxLayout* makePage(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(20, 20, 20, 18);
    layout->setSpacing(14);
    return layout;
}

} // namespace

TransferWindow::TransferWindow() : m_pages(new QStackedLayout(this))
{
    m_progressPage = makeProgressPage();
    m_conflictPage = makeConflictPage();
    m_wordsPage = makeWordsPage();
    for (QWidget* page : {m_progressPage, m_conflictPage, m_wordsPage})
        m_pages->addWidget(page);
    for (const QWidget* page : {m_conflictPage, m_wordsPage}) {
        for (QPushButton* button : page->findChildren<QPushButton*>())
            button->installEventFilter(this);
    }
    closeByKeyboard(*this);
}

QWidget* TransferWindow::makeProgressPage()
{
    auto* page = new QWidget(this);
    m_what = makeLongHeading(page);
    // The bar and the window are called so.
    LinuxDesktop::setAccessibleRole(*m_what, QAccessible::NoRole);
    m_progress = new ProgressRow(page);
    connect(m_progress, &ProgressRow::cancelled, this, &TransferWindow::cancelled);
    auto* layout = makePage(page);
    layout->addWidget(m_what);
    layout->addWidget(m_progress);
    layout->addStretch();
    return page;
}

QWidget* TransferWindow::makeConflictPage()
{
    auto* page = new QWidget(this);
    m_question = makeLongHeading(page);
    m_coming = new ItemCard(page);
    m_existing = new ItemCard(page);
    m_forAll = new QCheckBox(tr("Do the same for all the rest"), page);
    auto* cards = new QHBoxLayout;
    cards->setSpacing(14);
    cards->addWidget(m_coming, 1);
    cards->addWidget(m_existing, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    QPushButton* cancel = addButton(*buttons, tr("Cancel"), page);
    buttons->addStretch();
    m_skip = addButton(*buttons, tr("Skip"), page);
    m_replace = addButton(*buttons, tr("Replace"), page);
    m_merge = addButton(*buttons, tr("Merge"), page);
    m_keepBoth = addButton(*buttons, tr("Keep Both"), page, true);
    connect(cancel, &QPushButton::clicked, this, &TransferWindow::cancelled);
    connect(m_skip, &QPushButton::clicked, this, [this] { decide(Resolution::Skip); });
    connect(m_replace, &QPushButton::clicked, this, [this] { decide(Resolution::Replace); });
    connect(m_merge, &QPushButton::clicked, this, [this] { decide(Resolution::Merge); });
    connect(m_keepBoth, &QPushButton::clicked, this, [this] { decide(Resolution::KeepBoth); });
    auto* layout = makePage(page);
    layout->addWidget(m_question);
    layout->addLayout(cards);
    layout->addWidget(m_forAll);
    layout->addStretch();
    layout->addLayout(buttons);
    return page;
}

QWidget* TransferWindow::makeWordsPage()
{
    auto* page = new QWidget(this);
    m_words = makeLongHeading(page);
    m_details = makeParagraph(page);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_details->setAlignment((m_details->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
    m_detailsArea = new QScrollArea(page);
    m_detailsArea->setWidget(m_details);
    m_detailsArea->setWidgetResizable(true);
    m_detailsArea->setFrameShape(QFrame::NoFrame);
    m_detailsArea->setAccessibleName(tr("What was not done"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    m_undo = addButton(*buttons, tr("Undo"), page);
    m_showItem = addButton(*buttons, tr("Show"), page);
    buttons->addStretch();
    m_close = addButton(*buttons, tr("Close"), page);
    m_goOn = addButton(*buttons, tr("Go On With the Others"), page);
    connect(m_undo, &QPushButton::clicked, this, &TransferWindow::undoAsked);
    connect(m_showItem, &QPushButton::clicked, this, &TransferWindow::showAsked);
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);
    connect(m_goOn, &QPushButton::clicked, this, &TransferWindow::wentOn);
    auto* layout = makePage(page);
    layout->addWidget(m_words);
    layout->addWidget(m_detailsArea, 1);
    layout->addStretch();
    layout->addLayout(buttons);
    return page;
}

void TransferWindow::showProgress(const QString& what)
{
    setWindowTitle(what);
    m_what->setText(what);
    m_isAtEnd = false;
    m_progress->start(what);
    turnTo(m_progressPage);
}

void TransferWindow::advance(const Progress& progress)
{
    const QLocale locale;
    const std::uint64_t files = progress.files;
    const std::uint64_t totalFiles = std::max<std::uint64_t>(progress.totalFiles, files);
    const std::uint64_t bytes = progress.bytes;
    const std::uint64_t totalBytes = progress.totalBytes;
    switch (progress.phase.load()) {
    case Progress::Phase::Counting:
        m_progress->advance(0, 0,
                            tr("Looking at %1 items", nullptr, LinuxDesktop::pluralCount(totalFiles))
                                .arg(locale.toString(static_cast<qulonglong>(totalFiles))));
        return;
    case Progress::Phase::Flushing:
        m_progress->advance(totalBytes, totalBytes, tr("Writing to the disk"));
        return;
    case Progress::Phase::Working:
        break;
    }
    QString words = tr("%1 of %2")
                        .arg(locale.toString(static_cast<qulonglong>(files)),
                             locale.toString(static_cast<qulonglong>(totalFiles)));
    if (totalBytes > 0)
        words = tr("%1 · %2 of %3").arg(words, LinuxDesktop::sizeText(bytes), LinuxDesktop::sizeText(totalBytes));
    m_progress->advance(bytes + files * bytesOfAFile, totalBytes + totalFiles * bytesOfAFile, words);
}

void TransferWindow::ask(const Conflict& conflict)
{
    const bool isFolder = S_ISDIR(conflict.target.status.st_mode);
    const QString name = Words::name(conflict.target.path);
    const QString folder = Words::name(LinuxDesktop::parentFolder(conflict.target.path));
    m_question->setText(
        (isFolder ? tr("There is a folder %1 in %2 already.") : tr("There is a file %1 in %2 already."))
            .arg(name, folder));
    m_coming->show(tr("New"), conflict.source);
    m_existing->show(tr("Already there"), conflict.target);
    m_replace->setVisible(conflict.canReplace);
    m_merge->setVisible(conflict.canMerge);
    // The one that Return means.
    m_merge->setProperty("primary", conflict.canMerge);
    m_keepBoth->setProperty("primary", !conflict.canMerge);
    m_forAll->setChecked(false);
    setWindowTitle(m_question->text());
    open(m_conflictPage, conflict.canMerge ? m_merge : m_keepBoth);
}

void TransferWindow::askToGoOn(const QStringList& problems)
{
    m_words->setText(tr("Not everything can be done."));
    showDetails(problems);
    m_undo->hide();
    m_showItem->hide();
    m_goOn->show();
    m_close->setText(tr("Cancel"));
    setWindowTitle(m_words->text());
    open(m_wordsPage, m_close);
}

void TransferWindow::showDetails(const QStringList& problems)
{
    m_details->setText(problems.join(u'\n'));
    m_detailsArea->setVisible(!problems.isEmpty());
}

void TransferWindow::showEnd(const QString& words, const QStringList& problems, bool canBeUndone, bool canBeShown)
{
    m_progress->finish();
    m_isAtEnd = true;
    m_words->setText(words);
    showDetails(problems);
    m_undo->setVisible(canBeUndone);
    m_showItem->setVisible(canBeShown);
    m_goOn->hide();
    m_close->setText(tr("Close"));
    setWindowTitle(words);
    open(m_wordsPage, m_close);
}

void TransferWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (m_isAtEnd)
        emit closed();
    else
        emit cancelled();
}

/// The second press of a double click was meant for the page before.
bool TransferWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    return (isPress && !m_unseen.hasExpired()) || QWidget::eventFilter(watched, event);
}

void TransferWindow::decide(Resolution resolution)
{
    emit decided({resolution, m_forAll->isChecked()});
}

/// The window is as high as that page, not as the highest of all.
void TransferWindow::turnTo(QWidget* page)
{
    for (QWidget* each : {m_progressPage, m_conflictPage, m_wordsPage}) {
        const auto policy = each == page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        each->setSizePolicy(policy, policy);
    }
    m_pages->setCurrentWidget(page);
    const QSize room = LinuxDesktop::roomOnScreen(*this);
    const QSize size = isVisible() ? this->size() : QSize(initialWidth, 0).boundedTo(room);
    resize(size.expandedTo(QSize(0, page->layout()->totalHeightForWidth(size.width())).boundedTo(room)));
}

void TransferWindow::open(QWidget* page, QWidget* focused)
{
    turnTo(page);
    // In place of another.
    if (isVisible())
        m_unseen.setRemainingTime(QApplication::doubleClickInterval());
    show();
    raise();
    activateWindow();
    focused->setFocus(Qt::OtherFocusReason);
}

} // namespace MenuExtension::Transfers
