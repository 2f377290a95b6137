#include "ResizeWindow.h"

#include "ComparePane.h"
#include "SizeRow.h"
#include "TargetRows.h"
#include "Texts.h"
#include "extension/actions/window/ProgressRow.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/PluralCount.h"
#include "platform/linux/text/SizeText.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace MenuExtension::Resizing {

using LinuxDesktop::sizeText;

namespace {

constexpr std::chrono::milliseconds still{120};

} // namespace

ResizeWindow::ResizeWindow(const Request& request)
    : m_request(request), m_heading(makeHeading(this)), m_photos(new QListView(this)), m_pane(new ComparePane(this)),
      m_size(new SizeRow(this)), m_choices(new QWidget(this)), m_result(makeParagraph(this)), m_previews(request),
      m_work(request)
{
    setWindowTitle(tr("Resize Photos"));
    QStringList names;
    for (std::size_t photo = 0; photo < request.paths.size(); ++photo)
        names.append(nameOf(photo));
    m_names.setStringList(names);
    auto* const form = new QFormLayout(m_choices);
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(10);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Size"), m_size);
    // Who cannot see the label hears it with the box.
    static_cast<QLabel*>(form->labelForField(m_size))->setBuddy(m_size->focusProxy());
    m_target = new TargetRows(*form, LinuxDesktop::parentFolder(request.paths.front()), this);
    // The keyboard goes through what there is in the order in which it was made.
    m_failures = new QListView(this);
    m_resize = makeButton(tr("Resize"), this, true);
    m_progress = new ProgressRow(this);
    layOut();

    m_settled.setSingleShot(true);
    m_settled.setInterval(still);
    connect(&m_settled, &QTimer::timeout, this, &ResizeWindow::preview);
    connect(m_size, &SizeRow::changed, &m_settled, qOverload<>(&QTimer::start));
    connect(m_pane, &ComparePane::roomChanged, &m_settled, qOverload<>(&QTimer::start));
    connect(m_photos->selectionModel(), &QItemSelectionModel::currentChanged, &m_settled,
            qOverload<>(&QTimer::start));
    connect(&m_previews, &PreviewWork::before, this,
            [this](const Result& result) { m_pane->showBefore(nameOf(shownPhoto()), result); });
    connect(&m_previews, &PreviewWork::after, this, [this](const Result& result) {
        m_pane->showAfter(result);
        if (const auto* resized = std::get_if<Resized>(&result)) {
            const std::string& path = m_request.paths[shownPhoto()];
            m_target->showExample(path.substr(path.rfind('/') + 1), resized->after);
        }
    });
    connect(m_resize, &QPushButton::clicked, this, &ResizeWindow::resizeAll);
    connect(m_target, &TargetRows::confirmed, this, &ResizeWindow::resizeAll);
    connect(m_progress, &ProgressRow::cancelled, &m_work, &ResizeWork::cancel);
    connect(&m_work, &ResizeWork::advanced, this, &ResizeWindow::showProgress);
    connect(&m_work, &ResizeWork::ended, this, &ResizeWindow::showEnd);
    closeByKeyboard(*this);
}

void ResizeWindow::layOut()
{
    const bool isOne = m_request.paths.size() == 1;
    m_heading->setText(isOne ? nameOf(0) : tr("%n photos", nullptr, static_cast<int>(m_request.paths.size())));
    // Long names do not widen the window.
    m_heading->setMinimumWidth(1);

    m_photos->setModel(&m_names);
    m_photos->setAccessibleName(tr("Photos"));
    m_photos->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_photos->setUniformItemSizes(true);
    m_photos->setCurrentIndex(m_names.index(0));
    m_photos->setMinimumWidth(120);
    m_photos->setVisible(!isOne);
    QWidget* middle = m_pane;
    if (!isOne) {
        QSplitter* const parts = makeSplitter(m_photos, m_pane, this);
        parts->setStretchFactor(1, 1);
        parts->setSizes({180, 600});
        middle = parts;
    }

    m_result->hide();
    m_failures->setModel(&m_failureLines);
    m_failures->setAccessibleName(tr("Photos that failed"));
    m_failures->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_failures->setWordWrap(true);
    m_failures->setMaximumHeight(6 * fontMetrics().lineSpacing());
    m_failures->hide();

    auto* const end = new QHBoxLayout;
    end->setSpacing(12);
    end->addWidget(m_result, 1);
    end->addWidget(m_resize, 0, Qt::AlignRight | Qt::AlignTop);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(14);
    layout->addWidget(m_heading);
    layout->addWidget(middle, 1);
    layout->addWidget(m_choices);
    layout->addWidget(m_failures);
    layout->addLayout(end);
    layout->addWidget(m_progress);
    readInOrder({m_heading, middle, m_choices, m_failures, m_result, m_resize, m_progress});
    resize(isOne ? 700 : 860, 600);
    m_size->setFocus();
}

std::size_t ResizeWindow::shownPhoto() const
{
    return static_cast<std::size_t>(std::max(m_photos->currentIndex().row(), 0));
}

QString ResizeWindow::nameOf(std::size_t photo) const
{
    const std::string_view path = m_request.paths[photo];
    return LinuxDesktop::fileNameText(path.substr(path.rfind('/') + 1));
}

void ResizeWindow::preview()
{
    if (m_work.isWorking())
        return;
    m_pane->showThatItIsWorkedOn();
    m_previews.show(shownPhoto(), m_size->wish(), m_pane->room());
}

void ResizeWindow::say(const QString& words)
{
    m_result->setText(words);
    m_result->setVisible(!words.isEmpty());
    LinuxDesktop::announce(*m_result, words);
}

void ResizeWindow::setBusy(bool busy)
{
    m_choices->setEnabled(!busy);
    m_resize->setEnabled(!busy);
}

void ResizeWindow::resizeAll()
{
    const auto target = m_target->target();
    say(m_target->complaint());
    if (!target || m_work.isWorking())
        return;
    m_failures->hide();
    setBusy(true);
    m_progress->start(tr("Resizing photos"));
    m_work.start(m_size->wish(), *target);
}

void ResizeWindow::showProgress(const ResizeWork::Progress& progress)
{
    const std::size_t total = m_request.paths.size();
    m_progress->advance(
        progress.done, total,
        tr("%1 of %2 photos", nullptr, LinuxDesktop::pluralCount(total)).arg(progress.done).arg(total));
}

void ResizeWindow::showEnd(const ResizeWork::Progress& progress)
{
    m_progress->finish();
    setBusy(false);
    QStringList words;
    if (progress.isCancelled)
        words += tr("It was ended.");
    if (progress.resized > 0)
        words += (progress.resized == 1
                      ? tr("1 photo was resized: %1 became %2.")
                      : tr("%n photos were resized: %1 became %2.", nullptr, static_cast<int>(progress.resized)))
                     .arg(sizeText(progress.bytesBefore), sizeText(progress.bytesAfter));
    if (progress.smallAlready > 0)
        words += progress.smallAlready == 1
                     ? tr("1 is small enough already.")
                     : tr("%n are small enough already.", nullptr, static_cast<int>(progress.smallAlready));
    const bool areAsTheyWere = std::ranges::none_of(
        progress.failures, [](const auto& failure) { return failure.second.kind == Outcome::Kind::OnlyInTrash; });
    if (!progress.failures.empty())
        words += areAsTheyWere ? tr("These were left as they are:") : tr("Photos that failed:");
    say(words.join(u' '));
    QStringList lines;
    for (const auto& [photo, outcome] : progress.failures)
        lines += inWords(nameOf(photo), outcome);
    m_failureLines.setStringList(lines);
    m_failures->setVisible(!lines.isEmpty());
    m_resize->setFocus();
    m_settled.start();
}

} // namespace MenuExtension::Resizing
