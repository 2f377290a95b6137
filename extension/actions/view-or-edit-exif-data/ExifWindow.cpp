#include "ExifWindow.h"

#include "EditForm.h"
#include "PersonalDataDialog.h"
#include "TagView.h"
#include "TroubleWords.h"
#include "extension/actions/window/ProgressRow.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/PluralCount.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace MenuExtension::Exif {

namespace {

constexpr std::chrono::milliseconds still{80};
/// A few rows of the form are to be seen, and a value beside its name.
constexpr QSize smallest(480, 460);

QString nameOf(std::string_view path)
{
    return LinuxDesktop::fileNameText(path.substr(path.rfind('/') + 1));
}

} // namespace

ExifWindow::ExifWindow(const Request& request)
    : m_request(request), m_photos(new QListView(this)), m_heading(makeHeading(this)), m_pages(new QTabWidget(this)),
      m_tags(new TagView(this)), m_form(new EditForm(this)), m_result(makeParagraph(this)),
      m_failures(new QListView(this)), m_progress(new ProgressRow(this)), m_work(request)
{
    setWindowTitle(tr("Exif Data"));
    QStringList names;
    for (const std::string& path : request.paths)
        names.append(nameOf(path));
    m_names.setStringList(names);
    layOut();

    m_settled.setSingleShot(true);
    m_settled.setInterval(still);
    connect(&m_settled, &QTimer::timeout, this, &ExifWindow::readSelected);
    connect(m_photos->selectionModel(), &QItemSelectionModel::selectionChanged, &m_settled,
            qOverload<>(&QTimer::start));
    connect(&m_work, &PhotoWork::advanced, this, &ExifWindow::showProgress);
    connect(&m_work, &PhotoWork::wereRead, this, &ExifWindow::showRead);
    connect(&m_work, &PhotoWork::wereSaved, this, &ExifWindow::showSaved);
    connect(m_progress, &ProgressRow::cancelled, this, [this] {
        const bool wasSaving = m_work.isSaving();
        m_work.cancel();
        m_progress->finish();
        m_photos->setEnabled(true);
        if (wasSaving) {
            say(tr("It was ended; the photos that were not saved yet are as they were."));
            read();
        } else if (m_request.paths.size() == 1) {
            close();
        } else {
            // Whichever is chosen then is read.
            m_photos->clearSelection();
            m_settled.stop();
            readSelected();
            say(tr("Reading was cancelled. Choose photos to read them."));
        }
    });
    connect(m_form, &EditForm::saved, this, &ExifWindow::save);
    connect(m_form, &EditForm::removalAsked, this, &ExifWindow::askToRemove);
    for (const auto& [key, page] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)})
        connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this, [this, page = page] {
            m_pages->setCurrentIndex((m_pages->currentIndex() + page + m_pages->count()) % m_pages->count());
        });
    closeByKeyboard(*this);

    m_photos->selectAll();
    m_settled.stop();
    read();
}

void ExifWindow::layOut()
{
    const bool isOne = m_request.paths.size() == 1;
    // Long names do not widen the window.
    m_heading->setMinimumWidth(1);
    m_photos->setModel(&m_names);
    m_photos->setAccessibleName(tr("Photos"));
    m_photos->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_photos->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_photos->setUniformItemSizes(true);
    m_photos->setMinimumWidth(120);
    m_photos->setVisible(!isOne);
    m_pages->addTab(m_tags, tr("Information"));
    m_pages->addTab(m_form, tr("Edit"));
    // No frame within the window's own.
    m_pages->setDocumentMode(true);
    m_pages->tabBar()->setAccessibleName(tr("Pages"));

    m_result->hide();
    m_failures->setModel(&m_failureLines);
    m_failures->setAccessibleName(tr("Photos that failed"));
    m_failures->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_failures->setWordWrap(true);
    m_failures->setMaximumHeight(6 * fontMetrics().lineSpacing());
    m_failures->hide();

    QSplitter* const parts = makeSplitter(m_photos, m_pages, this);
    parts->setStretchFactor(1, 1);
    parts->setSizes({220, 600});

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(12);
    layout->addWidget(m_heading);
    layout->addWidget(parts, 1);
    layout->addWidget(m_result);
    layout->addWidget(m_failures);
    layout->addWidget(m_progress);
    readInOrder({m_heading, parts, m_result, m_failures, m_progress});
    setMinimumSize(smallest);
    resize(isOne ? 660 : 860, 640);
    (isOne ? static_cast<QWidget*>(m_tags) : m_photos)->setFocus();
}

std::vector<std::size_t> ExifWindow::selected() const
{
    std::vector<std::size_t> photos;
    for (const QModelIndex& index : m_photos->selectionModel()->selectedRows())
        photos.push_back(static_cast<std::size_t>(index.row()));
    std::ranges::sort(photos);
    return photos;
}

void ExifWindow::readSelected()
{
    if (mayDiscard()) {
        clearResult();
        read();
    } else {
        m_photos->selectionModel()->select(m_shown, QItemSelectionModel::ClearAndSelect);
        m_photos->selectionModel()->setCurrentIndex(m_current, QItemSelectionModel::NoUpdate);
        m_settled.stop();
    }
}

bool ExifWindow::mayDiscard()
{
    if (!m_form->isChanged())
        return true;
    QDialog question(this);
    question.setWindowTitle(tr("Discard Changes"));
    QLabel* const words = makeParagraph(&question);
    words->setText(tr("What was typed has not been saved and will be lost."));
    // It is read with the window's title.
    LinuxDesktop::tieWords(*words, question);
    auto* const buttons = new QDialogButtonBox(&question);
    buttons->addButton(tr("Discard"), QDialogButtonBox::AcceptRole);
    QPushButton* const cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setDefault(true);
    cancel->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, &question, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &question, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&question);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(12);
    layout->addWidget(words);
    layout->addWidget(buttons);
    readInOrder({words, buttons});
    return question.exec() == QDialog::Accepted;
}

void ExifWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayDiscard());
}

void ExifWindow::read()
{
    const auto photos = selected();
    m_shown = m_photos->selectionModel()->selection();
    m_current = m_photos->currentIndex();
    m_heading->setText(photos.size() == 1 ? m_names.data(m_names.index(static_cast<int>(photos.front()))).toString()
                                          : tr("%n photos", nullptr, static_cast<int>(photos.size())));
    m_form->setBusy(true);
    m_progress->start(tr("Reading photos"));
    m_work.read(photos);
}

void ExifWindow::showProgress(const PhotoWork::Progress& progress)
{
    m_progress->advance(progress.done, progress.total,
                        tr("%1 of %2 photos", nullptr, LinuxDesktop::pluralCount(progress.total))
                            .arg(progress.done)
                            .arg(progress.total));
    // The first of many are something to look at already.
    if (!m_work.isSaving() && m_merged.photos() == 0 && progress.merged.photos() > 0) {
        m_merged = progress.merged;
        m_tags->showTags(m_merged);
    }
}

void ExifWindow::showRead(const PhotoWork::Progress& progress)
{
    m_progress->finish();
    m_merged = progress.merged;
    m_tags->showTags(m_merged);
    m_form->showFields(m_merged);
    m_form->setBusy(m_merged.photos() == 0);
    addFailures(progress.failures);
}

void ExifWindow::save(const Edits& edits)
{
    // Before the form, from which the keyboard would go there.
    m_photos->setEnabled(false);
    m_form->setBusy(true);
    clearResult();
    m_progress->start(tr("Saving photos"));
    m_work.save(selected(), edits, m_form->options());
}

void ExifWindow::showSaved(const PhotoWork::Progress& progress)
{
    m_photos->setEnabled(true);
    const auto failed = std::ranges::count_if(
        progress.failures, [](const auto& failure) { return failure.second.kind != Trouble::Kind::HoldsMore; });
    const int saved = static_cast<int>(progress.done) - static_cast<int>(failed);
    const QString words = saved == 1 ? tr("1 photo was saved.") : tr("%n photos were saved.", nullptr, saved);
    //: The first says how many photos were saved; the others follow as a list.
    say(failed == 0 ? words : tr("%1 These were left as they were:").arg(words));
    addFailures(progress.failures);
    if (saved > 0) {
        read();
        return;
    }
    // What was typed is still to be saved.
    m_progress->finish();
    m_form->setBusy(false);
}

void ExifWindow::say(const QString& words)
{
    m_result->setText(words);
    m_result->show();
    LinuxDesktop::announce(*m_result, words);
}

void ExifWindow::addFailures(const PhotoWork::Failures& failures)
{
    QStringList lines = m_failureLines.stringList();
    for (const auto& [photo, trouble] : failures) {
        if (m_failed.insert(photo).second)
            //: A photo's name, and what is wrong with it, which is a sentence.
            lines.append(tr("%1: %2").arg(nameOf(m_request.paths[photo]), inWords(trouble)));
    }
    m_failureLines.setStringList(lines);
    m_failures->setVisible(!lines.isEmpty());
}

void ExifWindow::clearResult()
{
    m_result->hide();
    m_failed.clear();
    m_failureLines.setStringList({});
    m_failures->hide();
}

void ExifWindow::askToRemove(Edits edits)
{
    PersonalDataDialog dialog(m_merged, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    edits.removesPersonalData = true;
    save(edits);
}

} // namespace MenuExtension::Exif
