#pragma once

#include "platform/Control.h"
#include "platform/Outlet.h"
#include "platform/TableView.h"
#include "platform/URL.h"
#include "platform/UserDefaults.h"
#include "platform/ViewController.h"

#include <memory>
#include <string>
#include <vector>

/// The custom folders screen: a list that the extension keeps and announces; the user deletes entries from it.
/// Main thread.
class customFoldersVc : public NS::ViewController, public NS::TableViewDataSource, public NS::TableViewDelegate {
public:
    customFoldersVc();

    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;
    void viewWillAppear() override;

    /// Takes over the stored list, where it is one of texts, and shows the list anew.
    void reloadCustomFolders();
    std::ptrdiff_t numberOfRowsInTableView(NS::TableView& tableView) override;
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn* tableColumn,
                                                        std::ptrdiff_t row) override;
    std::string tableView_typeSelectStringForTableColumn_row(NS::TableView& tableView,
                                                             const NS::TableColumn* tableColumn,
                                                             std::ptrdiff_t row) override;
    /// Deletes the entry that the sender's tag names, without a question. Another tag is fatal.
    void brnDeleteClickedWithSender(NS::Control& sender);

    NS::Outlet<NS::TableView> tblview{"tblview"};
    /// Null when the suite cannot be read; the screen then works in memory only.
    const std::shared_ptr<NS::UserDefaults> sharedDefaults;
    std::vector<std::string> arrCustomFolders;

private:
    [[nodiscard]] NS::URL urlAt(std::ptrdiff_t row) const;
    void requireRow(std::ptrdiff_t row) const;
};
