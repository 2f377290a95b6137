#include "extension/actions/transfer/window/TransferWindow.h"

#include "extension/actions/transfer/Progress.h"
#include "extension/actions/transfer/window/ItemCard.h"
#include "extension/actions/transfer/window/TransferWords.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/PluralCount.h"
#include "platform/linux/text/SizeText.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace MenuExtension::Transfers {

namespace {

constexpr int initialWidth = 640;
/// To make a file takes about as long as to copy so much.
constexpr std::uint64_t bytesOfAFile = std::uint64_t{32} << 10U;

QLabel* makeText(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* makeHeading(QWidget* parent)
{
    QLabel* label = makeText(parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

QPushButton* addButton(QHBoxLayout& row, const QString& title, QWidget* parent)
{
    auto* button = new QPushButton(title, parent);
    // The one that has the keyboard is the one that Return means.
    button->setAutoDefault(true);
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
    for (const auto& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
    resize(initialWidth, sizeHint().height());
}

QWidget* TransferWindow::makeProgressPage()
{
    auto* page = new QWidget(this);
    m_what = makeHeading(page);
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
    m_question = makeHeading(page);
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
    m_keepBoth = addButton(*buttons, tr("Keep Both"), page);
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
    m_words = makeHeading(page);
    m_details = makeText(page);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_details->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto* area = new QScrollArea(page);
    area->setWidget(m_details);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setAccessibleName(tr("What was not done"));
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
    layout->addWidget(area, 1);
    layout->addLayout(buttons);
    return page;
}

void TransferWindow::showProgress(const QString& what)
{
    setWindowTitle(what);
    m_what->setText(what);
    m_isAtEnd = false;
    m_progress->start(what);
    m_pages->setCurrentWidget(m_progressPage);
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
    m_forAll->setChecked(false);
    setWindowTitle(m_question->text());
    open(m_conflictPage, conflict.canMerge ? m_merge : m_keepBoth);
}

void TransferWindow::askToGoOn(const QStringList& problems)
{
    m_words->setText(tr("Not everything can be done."));
    m_details->setText(problems.join(u'\n'));
    m_undo->hide();
    m_showItem->hide();
    m_goOn->show();
    m_close->setText(tr("Cancel"));
    setWindowTitle(m_words->text());
    open(m_wordsPage, m_close);
}

void TransferWindow::showEnd(const QString& words, const QStringList& problems, bool canBeUndone, bool canBeShown)
{
    m_progress->finish();
    m_isAtEnd = true;
    m_words->setText(words);
    m_details->setText(problems.join(u'\n'));
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

void TransferWindow::decide(Resolution resolution)
{
    emit decided({resolution, m_forAll->isChecked()});
}

void TransferWindow::open(QWidget* page, QWidget* focused)
{
    m_pages->setCurrentWidget(page);
    show();
    raise();
    activateWindow();
    focused->setFocus(Qt::OtherFocusReason);
}

} // namespace MenuExtension::Transfers
