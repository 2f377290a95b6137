#pragma once

#include "extension/actions/duplicates/BriefThread.h"
#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/duplicates/FindingsQueue.h"
#include "extension/actions/duplicates/Groups.h"
#include "extension/actions/duplicates/Presentation.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QStackedWidget;
class QTreeView;

namespace MenuExtension {
class ProgressRow;
} // namespace MenuExtension

namespace MenuExtension::Duplicates {

class GroupListModel;
class ItemListModel;
class PreviewPane;

/// The window that shows groups of duplicates while they are found, the largest saving first, and moves what a person
/// has chosen to the trash. Main thread.
class DuplicatesWindow : public QWidget {
    Q_OBJECT

public:
    /// Starts the search at once. Destroying it ends search and removal.
    DuplicatesWindow(std::unique_ptr<Finder> finder, Presentation presentation);
    ~DuplicatesWindow() override;

private:
    void layOut();
    [[nodiscard]] QWidget* makeTop();
    [[nodiscard]] QWidget* makeGroupList();
    [[nodiscard]] QWidget* makeDetails();
    [[nodiscard]] QWidget* makeFoot();
    void fillRules();

    void search();
    void searchAgain();
    void takeFindings();
    void takeLater();
    void endSearch();

    void choose(const KeepRule& rule);
    void remove();
    void endRemoval();

    void showGroups();
    void showCurrentGroup();
    void showCurrentItem();
    void showHint(const QString& words);
    void showSum(const QString& words);
    void showChoice();
    void showHeading();
    void selectGroup(std::optional<GroupNumber> group);
    void showRemoval();
    void addTrouble(const std::string& path, const std::string& why);
    void showTroubleCount();
    void showTroubles();
    [[nodiscard]] std::optional<Item> currentItem() const;

    const Presentation m_presentation;
    const std::unique_ptr<Finder> m_finder;
    Groups m_groups;

    QLabel* m_heading;
    QLineEdit* m_filter;
    QPushButton* m_rules;
    QAction* m_inThisFolder = nullptr;
    QStackedWidget* m_pages;
    QLabel* m_nothing;
    QListView* m_list;
    QLabel* m_hint;
    QTreeView* m_items;
    PreviewPane* m_preview;
    ProgressRow* m_progress;
    QLabel* m_sum;
    QPushButton* m_troubleButton;
    QPushButton* m_remove;
    GroupListModel* m_listModel;
    ItemListModel* m_itemsModel;

    QTimer m_taking;
    /// Since what was found was last taken in, and how long it is to be until the next time.
    QElapsedTimer m_sinceTaking;
    std::chrono::milliseconds m_pause{0};
    bool m_isSearching = false;
    bool m_wasStopped = false;
    bool m_isArranging = false;
    bool m_isToSearchAgain = false;
    bool m_isToForget = false;
    bool m_isRemoving = false;
    /// Sentences, and how many more there were.
    QStringList m_troubles;
    std::size_t m_moreTroubles = 0;
    std::uint64_t m_lookedAt = 0;

    struct RemovalState;
    std::unique_ptr<RemovalState> m_removal;
    std::unique_ptr<FindingsQueue> m_queue;
    /// Last, so that they end first.
    BriefThread m_search;
    std::jthread m_removing;
};

} // namespace MenuExtension::Duplicates
