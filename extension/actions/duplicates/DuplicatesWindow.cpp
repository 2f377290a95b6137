#include "extension/actions/duplicates/DuplicatesWindow.h"

#include "extension/actions/duplicates/GroupDelegate.h"
#include "extension/actions/duplicates/GroupListModel.h"
#include "extension/actions/duplicates/ItemListModel.h"
#include "extension/actions/duplicates/ItemTexts.h"
#include "extension/actions/duplicates/ItemView.h"
#include "extension/actions/duplicates/PreviewPane.h"
#include "extension/actions/duplicates/TroublesDialog.h"
#include "extension/actions/window/ProgressRow.h"
#include "extension/actions/window/WindowParts.h"
#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"
#include "platform/linux/text/PluralCount.h"
#include "platform/linux/text/SizeText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <set>

namespace MenuExtension::Duplicates {

using LinuxDesktop::pluralCount;
using LinuxDesktop::sizeText;

namespace {

constexpr QSize initialSize(900, 640);
/// Why an item is the best takes more.
constexpr QSize initialSizeWithProposal(1060, 640);
constexpr QSize smallest(640, 500);
constexpr std::chrono::milliseconds betweenTakings{250};
constexpr qsizetype mostTroubles = 1000;
/// What the ring of a control that has the keyboard takes around it.
constexpr int ringRoom = 4;

enum Page { ListPage, NothingPage };

} // namespace

/// What a removal has told and the window has not shown yet.
struct DuplicatesWindow::RemovalState {
    std::mutex mutex;
    std::vector<ItemNumber> removed;
    std::vector<std::pair<ItemNumber, std::string>> kept;
    /// Of the removal's thread, until that has ended.
    std::set<ItemNumber> missing;
    /// Of the window's thread.
    std::uint64_t total = 0;
    QTimer timer;
};

DuplicatesWindow::DuplicatesWindow(std::unique_ptr<Finder> finder, Presentation presentation)
    : m_presentation(std::move(presentation)), m_finder(std::move(finder)),
      m_groups(m_presentation.proposal ? m_presentation.proposal->isBetter : nullptr), m_heading(makeHeading(this)),
      m_filter(makeSearch(tr("Filter"), tr("Filter by name or folder"), this)),
      m_rules(makeButton(tr("Choose by Rule"), this)), m_pages(new QStackedWidget(this)),
      m_nothing(makeParagraph(this)), m_list(new QListView(this)), m_hint(makeNote(this)),
      m_items(new ItemView(this)), m_preview(new PreviewPane(m_presentation, this)),
      m_progress(new ProgressRow(this)), m_sum(makeText(this)), m_troubleButton(makeButton({}, this)),
      m_remove(makeButton({}, this, true)), m_listModel(new GroupListModel(m_groups, m_presentation, this)),
      m_itemsModel(new ItemListModel(m_groups, m_presentation, this))
{
    setWindowTitle(m_presentation.title);
    layOut();
    setMinimumSize(smallest);
    resize(m_presentation.proposal ? initialSizeWithProposal : initialSize);

    m_taking.setSingleShot(true);
    connect(&m_taking, &QTimer::timeout, this, &DuplicatesWindow::takeFindings);
    connect(m_filter, &QLineEdit::textChanged, this, &DuplicatesWindow::showGroups);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DuplicatesWindow::showCurrentGroup);
    connect(m_items->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DuplicatesWindow::showCurrentItem);
    connect(m_itemsModel, &ItemListModel::chosen, this, &DuplicatesWindow::showChoice);
    connect(m_itemsModel, &ItemListModel::refused, this, [this] {
        showHint(tr("One always stays. Keep another one before you choose this."));
        LinuxDesktop::announce(*m_hint, m_hint->text());
    });
    connect(m_remove, &QPushButton::clicked, this, &DuplicatesWindow::remove);
    connect(m_troubleButton, &QPushButton::clicked, this, &DuplicatesWindow::showTroubles);
    connect(m_progress, &ProgressRow::cancelled, this, [this] {
        if (m_isRemoving) {
            m_removing.request_stop();
            return;
        }
        m_wasStopped = true;
        m_search.requestStop();
    });
    closeByKeyboard(*this);
    connect(new QShortcut(QKeySequence(QKeySequence::Find), this), &QShortcut::activated, m_filter,
            qOverload<>(&QWidget::setFocus));
    showChoice();
    search();
}

DuplicatesWindow::~DuplicatesWindow()
{
    // The lists would ask for what they show until their own end, which comes after that of what they show.
    hide();
    m_search.requestStop();
    m_removing.request_stop();
}

void DuplicatesWindow::layOut()
{
    QSplitter* const splitter = makeSplitter(makeGroupList(), makeDetails(), this);
    splitter->setStretchFactor(0, m_presentation.proposal ? 1 : 2);
    splitter->setStretchFactor(1, 3);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_pages->addWidget(splitter);
    m_pages->addWidget(m_nothing);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(20 - ringRoom, 16 - ringRoom, 20 - ringRoom, 16 - ringRoom);
    column->setSpacing(12 - ringRoom);
    QWidget* const top = makeTop();
    QWidget* const foot = makeFoot();
    auto* const middle = new QVBoxLayout;
    middle->setContentsMargins(ringRoom, 0, ringRoom, 0);
    middle->setSpacing(12);
    middle->addWidget(m_pages, 1);
    middle->addWidget(m_progress);
    column->addWidget(top);
    column->addLayout(middle, 1);
    column->addWidget(foot);
    readInOrder({top, m_pages, m_progress, foot});
    setTabOrder(m_list, m_items);
    m_list->setFocus();
}

QWidget* DuplicatesWindow::makeTop()
{
    auto* const top = new QWidget(this);
    fillRules();

    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_filter, 1);
    row->addWidget(m_rules);
    auto* const column = new QVBoxLayout(top);
    column->setContentsMargins(ringRoom, ringRoom, ringRoom, ringRoom);
    column->setSpacing(10);
    column->addWidget(m_heading);
    if (m_presentation.makeControl)
        column->addWidget(m_presentation.makeControl(top, [this] { searchAgain(); }));
    column->addLayout(row);
    return top;
}

void DuplicatesWindow::fillRules()
{
    auto* const menu = new QMenu(m_rules);
    const auto add = [&](const QString& text, auto rule) {
        return menu->addAction(text, this, [this, rule] { choose(rule()); });
    };
    using Kind = KeepRule::Kind;
    if (m_presentation.proposal)
        add(m_presentation.proposal->title, [this] {
            return KeepRule{.kind = Kind::Best, .folder = {}, .isBetter = m_presentation.proposal->isBetter};
        });
    add(tr("Keep the Oldest"), [] { return KeepRule{.kind = Kind::Oldest}; });
    add(tr("Keep the Newest"), [] { return KeepRule{.kind = Kind::Newest}; });
    add(tr("Keep the One with the Shortest Path"), [] { return KeepRule{.kind = Kind::ShortestPath}; });
    m_inThisFolder = add(QString(), [this] {
        const auto item = currentItem();
        return KeepRule{.kind = Kind::InFolder, .folder = item ? LinuxDesktop::parentFolder(item->path) : ""};
    });
    menu->addSeparator();
    menu->addAction(tr("Choose Nothing"), this, [this] {
        m_groups.chooseNothing();
        showChoice();
        LinuxDesktop::announce(*m_sum, m_sum->text());
    });
    connect(menu, &QMenu::aboutToShow, this, [this] {
        const auto item = currentItem();
        m_inThisFolder->setEnabled(item.has_value());
        QString folder =
            item ? LinuxDesktop::fileNameText(LinuxDesktop::parentFolder(item->path)) : tr("the Folder of the Item");
        folder = fontMetrics().elidedText(folder, Qt::ElideMiddle, width() / 2);
        m_inThisFolder->setText(tr("Keep Those in %1").arg(folder.replace(u'&', QStringLiteral("&&"))));
    });
    m_rules->setMenu(menu);
}

QWidget* DuplicatesWindow::makeGroupList()
{
    m_list->setModel(m_listModel);
    m_list->setItemDelegate(new GroupDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(tr("Groups"));
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumWidth(220);
    return m_list;
}

QWidget* DuplicatesWindow::makeDetails()
{
    m_items->setModel(m_itemsModel);
    m_items->setAccessibleName(tr("Items of the Group"));
    auto& header = *m_items->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setSectionResizeMode(ItemListModel::FolderColumn, QHeaderView::Stretch);
    header.resizeSection(ItemListModel::NameColumn, 150);
    const Item longest{.path = {},
                       .state = {.device = 0, .inode = 0, .size = 0, .modified = 999'999'999'999'999'999}};
    constexpr int aroundText = 24;
    header.resizeSection(ItemListModel::SizeColumn, fontMetrics().horizontalAdvance(sizeText(999'900)) + aroundText);
    header.resizeSection(ItemListModel::DateColumn, fontMetrics().horizontalAdvance(dateText(longest)) + aroundText);
    header.setMinimumSectionSize(60);
    // Three of a group are to be seen at least.
    m_items->setMinimumHeight(header.sizeHint().height() + 4 * (fontMetrics().height() + 6));
    // What a finder tells of its own is what its items are chosen by.
    for (int column = ItemListModel::FirstOwnColumn, place = 1; column < m_itemsModel->columnCount();
         ++column, ++place)
        header.moveSection(header.visualIndex(column), place);
    if (m_presentation.proposal)
        header.setSectionResizeMode(m_itemsModel->columnCount() - 1, QHeaderView::ResizeToContents);
    m_hint->setWordWrap(true);
    LinuxDesktop::tieWords(*m_hint, *m_items);

    auto* const details = new QWidget(this);
    auto* const column = new QVBoxLayout(details);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_hint);
    column->addWidget(m_items, 3);
    column->addWidget(m_preview, m_presentation.isSideBySide ? 4 : 2);
    return details;
}

QWidget* DuplicatesWindow::makeFoot()
{
    auto* const foot = new QWidget(this);
    m_troubleButton->setFlat(true);
    m_troubleButton->hide();
    m_sum->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    LinuxDesktop::tieWords(*m_sum, *m_remove);
    auto* const row = new QHBoxLayout(foot);
    row->setContentsMargins(ringRoom, ringRoom, ringRoom, ringRoom);
    row->setSpacing(12);
    row->addWidget(m_sum, 1);
    row->addWidget(m_troubleButton);
    row->addWidget(m_remove);
    return foot;
}

void DuplicatesWindow::search()
{
    m_isSearching = true;
    m_wasStopped = false;
    m_progress->start(tr("Looking for duplicates"));
    const auto wake = [this] { QMetaObject::invokeMethod(this, &DuplicatesWindow::takeLater, Qt::QueuedConnection); };
    m_queue = std::make_unique<FindingsQueue>(wake, m_search.renew());
    m_search.start([this](const std::stop_token& stop) {
        m_finder->find(*m_queue, stop);
        m_queue->end();
    });
    showHeading();
}

void DuplicatesWindow::searchAgain()
{
    m_isToForget = true;
    m_isToSearchAgain = m_isSearching || m_isRemoving;
    if (m_isSearching)
        m_search.requestStop();
    if (!m_isToSearchAgain)
        search();
}

/// What comes fast is taken in together.
void DuplicatesWindow::takeLater()
{
    if (m_isRemoving || m_taking.isActive())
        return;
    const std::chrono::milliseconds passed(m_sinceTaking.isValid() ? m_sinceTaking.elapsed() : 0);
    m_taking.start(std::max(m_pause - passed, std::chrono::milliseconds(0)));
}

void DuplicatesWindow::takeFindings()
{
    if (!m_queue || m_isRemoving)
        return;
    QElapsedTimer duration;
    duration.start();
    FindingsQueue::Batch batch = m_queue->take();
    if (m_isToSearchAgain)
        batch.groups.clear();
    const bool isNew = m_isToForget && !m_isToSearchAgain && (!batch.groups.empty() || batch.hasEnded);
    if (isNew) {
        selectGroup(std::nullopt);
        m_listModel->setGroups({});
        m_groups.clear();
        m_troubles.clear();
        m_moreTroubles = 0;
        m_lookedAt = 0;
        m_isToForget = false;
    }
    for (const auto& [key, items] : batch.groups)
        m_groups.add(key, items);
    if (batch.progress) {
        m_lookedAt = batch.progress->files;
        m_progress->advance(batch.progress->done, batch.progress->total,
                            tr("%1 looked at").arg(m_presentation.counted(m_lookedAt)));
    }
    for (const auto& [path, why] : batch.troubles)
        addTrouble(path, why);
    showTroubleCount();
    if (batch.hasEnded)
        endSearch();
    if (isNew || !batch.groups.empty() || batch.hasEnded) {
        showGroups();
        showChoice();
    }
    if (batch.hasEnded && !m_isSearching)
        LinuxDesktop::announce(*this, m_pages->currentIndex() == NothingPage ? m_nothing->text() : m_heading->text());
    // Of the time no more than a part is spent on showing what is found.
    m_pause = std::max(betweenTakings, std::chrono::milliseconds(8 * duration.elapsed()));
    m_sinceTaking.start();
}

void DuplicatesWindow::endSearch()
{
    m_search.join();
    m_isSearching = false;
    m_progress->finish();
    if (std::exchange(m_isToSearchAgain, false))
        search();
}

void DuplicatesWindow::choose(const KeepRule& rule)
{
    if (m_isRemoving)
        return;
    m_groups.choose(m_listModel->groups(), rule);
    showChoice();
    LinuxDesktop::announce(*m_sum, m_sum->text());
}

void DuplicatesWindow::remove()
{
    if (m_isRemoving || m_groups.chosen().items == 0)
        return;
    m_isRemoving = true;
    // The button goes off, and the keyboard would go anywhere.
    if (m_remove->hasFocus())
        m_list->setFocus();
    m_itemsModel->setChangeable(false);
    m_removal = std::make_unique<RemovalState>();
    m_removal->total = m_groups.chosen().items;
    connect(&m_removal->timer, &QTimer::timeout, this, &DuplicatesWindow::showRemoval);
    m_removal->timer.start(betweenTakings);
    m_progress->start(tr("Moving to the trash"));
    showChoice();
    m_removing = std::jthread([this, state = m_removal.get()](const std::stop_token& stop) {
        removeChosen(m_groups, m_presentation.removal,
                     {.removed =
                          [state](ItemNumber number) {
                              const std::scoped_lock lock(state->mutex);
                              state->removed.push_back(number);
                          },
                      .kept =
                          [state](ItemNumber number, const std::string& why) {
                              const std::scoped_lock lock(state->mutex);
                              state->kept.emplace_back(number, why);
                          },
                      .missing = [state](ItemNumber number) { state->missing.insert(number); }},
                     stop);
        QMetaObject::invokeMethod(this, &DuplicatesWindow::endRemoval, Qt::QueuedConnection);
    });
}

void DuplicatesWindow::showRemoval()
{
    const std::scoped_lock lock(m_removal->mutex);
    const std::uint64_t done = m_removal->removed.size() + m_removal->kept.size();
    m_progress->advance(
        done, m_removal->total,
        tr("%1 of %2")
            .arg(QLocale().toString(static_cast<qulonglong>(done)), m_presentation.counted(m_removal->total)));
}

void DuplicatesWindow::endRemoval()
{
    m_removing.join();
    m_isRemoving = false;
    const std::unique_ptr<RemovalState> state = std::move(m_removal);
    std::int64_t bytes = 0;
    for (const ItemNumber number : state->removed)
        bytes += m_groups.item(number).state.size;
    for (const auto& [number, why] : state->kept)
        addTrouble(m_groups.item(number).path, why);
    const int row = m_list->currentIndex().row();
    const auto group = m_itemsModel->group();
    selectGroup(std::nullopt);
    m_groups.forget(state->removed);
    m_groups.forget({state->missing.begin(), state->missing.end()});
    m_itemsModel->setChangeable(true);
    m_progress->finish();
    if (m_isSearching)
        m_progress->start(tr("Looking for duplicates"));
    showTroubleCount();
    showGroups();
    // Else the one that has taken its place.
    if (group && std::ranges::count(m_listModel->groups(), *group) > 0)
        selectGroup(group);
    else
        m_list->setCurrentIndex(m_listModel->index(std::min(row, m_listModel->rowCount() - 1)));
    showChoice();
    const auto removed = static_cast<qulonglong>(state->removed.size());
    showSum(tr("Moved to the trash: %1, %2").arg(m_presentation.counted(removed), sizeText(bytes)));
    LinuxDesktop::announce(*m_sum, m_sum->text());
    if (std::exchange(m_isToSearchAgain, m_isToSearchAgain && m_isSearching) && !m_isSearching)
        search();
    takeLater();
}

void DuplicatesWindow::showGroups()
{
    const QModelIndex current = m_list->currentIndex();
    std::optional<GroupNumber> group;
    if (current.isValid())
        group = m_listModel->groups()[static_cast<std::size_t>(current.row())];
    m_isArranging = true;
    m_listModel->setGroups(m_groups.bySaving(m_filter->text().toStdString()));
    selectGroup(group);
    m_isArranging = false;
    showCurrentGroup();
    showHeading();
}

/// The first where that one is not on view.
void DuplicatesWindow::selectGroup(std::optional<GroupNumber> group)
{
    if (!group) {
        m_list->setCurrentIndex({});
        m_itemsModel->setGroup(std::nullopt);
        return;
    }
    const auto& groups = m_listModel->groups();
    const auto found = std::ranges::find(groups, *group);
    const auto row = static_cast<int>(found - groups.begin());
    m_list->setCurrentIndex(row < m_listModel->rowCount() ? m_listModel->index(row) : QModelIndex());
}

void DuplicatesWindow::showCurrentGroup()
{
    if (m_isArranging)
        return;
    if (!m_list->currentIndex().isValid() && m_listModel->rowCount() > 0) {
        m_list->setCurrentIndex(m_listModel->index(0));
        return;
    }
    const QModelIndex current = m_list->currentIndex();
    std::optional<GroupNumber> group;
    if (current.isValid())
        group = m_listModel->groups()[static_cast<std::size_t>(current.row())];
    m_itemsModel->setGroup(group);
    if (!m_items->currentIndex().isValid() && m_itemsModel->rowCount() > 0)
        m_items->setCurrentIndex(m_itemsModel->index(0, 0));
    showHint(tr("What is checked goes to the trash. One of a group always stays."));
    showCurrentItem();
}

void DuplicatesWindow::showHint(const QString& words)
{
    m_hint->setText(words);
    LinuxDesktop::describeByWords(*m_items);
}

void DuplicatesWindow::showSum(const QString& words)
{
    m_sum->setText(words);
    LinuxDesktop::describeByWords(*m_remove);
}

void DuplicatesWindow::showCurrentItem()
{
    const auto item = currentItem();
    std::vector<Item> items;
    if (item && m_presentation.isSideBySide) {
        const auto& numbers = m_itemsModel->items();
        const auto row = static_cast<std::size_t>(m_items->currentIndex().row());
        const std::size_t first = row < PreviewPane::mostItems ? 0 : row - PreviewPane::mostItems + 1;
        for (std::size_t index = first; index < std::min(numbers.size(), first + PreviewPane::mostItems); ++index)
            items.push_back(m_groups.item(numbers[index]));
    } else if (item) {
        items.push_back(*item);
    }
    m_preview->showItems(items);
}

void DuplicatesWindow::showChoice()
{
    const Groups::Sum& chosen = m_groups.chosen();
    m_remove->setEnabled(chosen.items > 0 && !m_isRemoving);
    m_rules->setEnabled(!m_isRemoving);
    m_remove->setText(chosen.items == 0   ? tr("Move to Trash")
                      : chosen.items == 1 ? tr("Move 1 Item to Trash")
                                          : tr("Move %1 Items to Trash", nullptr, pluralCount(chosen.items))
                                                .arg(QLocale().toString(static_cast<qulonglong>(chosen.items))));
    showSum(chosen.items == 0
                ? tr("Nothing is chosen.")
                : tr("Chosen: %1, %2").arg(m_presentation.counted(chosen.items), sizeText(chosen.bytes)));
    m_listModel->refresh();
    m_itemsModel->refresh();
}

void DuplicatesWindow::showHeading()
{
    const auto& groups = m_listModel->groups();
    std::int64_t saving = 0;
    for (const GroupNumber group : groups)
        saving += m_groups.savingOf(group);
    const bool isFiltered = !m_filter->text().isEmpty();
    if (!groups.empty())
        m_heading->setText((groups.size() == 1
                                ? tr("1 group, %1 could be saved")
                                : tr("%1 groups, %2 could be saved", nullptr, pluralCount(groups.size()))
                                      .arg(QLocale().toString(static_cast<qulonglong>(groups.size()))))
                               .arg(sizeText(saving)));
    else if (isFiltered)
        m_heading->setText(tr("No group matches the filter"));
    else
        m_heading->setText(m_presentation.title);
    m_nothing->setText(m_isSearching  ? tr("Looking for duplicates…")
                       : m_wasStopped ? tr("The search was stopped before anything was found.")
                       : m_lookedAt == 0 && !m_troubles.isEmpty() ? m_troubles.first()
                                                                  : m_presentation.nothingFound);
    m_pages->setCurrentIndex(groups.empty() && !isFiltered ? NothingPage : ListPage);
    m_filter->setEnabled(!groups.empty() || isFiltered);
}

void DuplicatesWindow::addTrouble(const std::string& path, const std::string& why)
{
    if (m_troubles.size() < mostTroubles)
        //: A file's name, and why nothing was done with it: “/home/a/b is the last copy that is left.”
        m_troubles.append(tr("%1 %2.").arg(LinuxDesktop::fileNameText(path), LinuxDesktop::fileNameText(why)));
    else
        ++m_moreTroubles;
}

void DuplicatesWindow::showTroubleCount()
{
    const auto count = static_cast<qulonglong>(m_troubles.size()) + m_moreTroubles;
    m_troubleButton->setVisible(count > 0);
    m_troubleButton->setText(
        count == 1 ? tr("1 Item Was Left Out…")
                   : tr("%1 Items Were Left Out…", nullptr, pluralCount(count)).arg(QLocale().toString(count)));
}

void DuplicatesWindow::showTroubles()
{
    QStringList lines = m_troubles;
    if (m_moreTroubles > 0)
        lines.append(tr("And %1 more.", nullptr, pluralCount(m_moreTroubles))
                         .arg(QLocale().toString(static_cast<qulonglong>(m_moreTroubles))));
    auto* const dialog = new TroublesDialog(lines, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

std::optional<Item> DuplicatesWindow::currentItem() const
{
    const QModelIndex current = m_items->currentIndex();
    if (!current.isValid())
        return std::nullopt;
    return m_groups.item(m_itemsModel->items()[static_cast<std::size_t>(current.row())]);
}

} // namespace MenuExtension::Duplicates
