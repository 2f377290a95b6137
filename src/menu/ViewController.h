#pragma once

#include "platform/Control.h"
#include "platform/OpenPanel.h"
#include "platform/Outlet.h"
#include "platform/TableView.h"
#include "platform/UserDefaults.h"
#include "platform/ViewController.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The menu items screen: a row for each stored action with its icon, its title and a checkbox that switches it
/// on or off at once. Main thread.
class ViewController : public NS::ViewController,
                       public NS::TableViewDataSource,
                       public NS::TableViewDelegate,
                       public NS::OpenSavePanelDelegate {
public:
    ViewController();

    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;

    std::ptrdiff_t numberOfRowsInTableView(NS::TableView& tableView) override;
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn* tableColumn,
                                                        std::ptrdiff_t row) override;
    std::string tableView_typeSelectStringForTableColumn_row(NS::TableView& tableView,
                                                             const NS::TableColumn* tableColumn,
                                                             std::ptrdiff_t row) override;

    /// Flips the stored state of the row that the sender's tag names. Another tag is fatal.
    void checkboxActionWithSender(NS::Control& sender);
    /// Deliberately does nothing.
    void btngetPermission(NS::Control& sender);

    [[nodiscard]] const std::any& representedObject() const override;
    void setRepresentedObject(std::any object) override;

    bool panel_shouldEnableURL(NS::OpenPanel& panel, const NS::URL& url) override;

    NS::Outlet<NS::TableView> tblview{"tblview"};
    std::string savekey;
    std::vector<std::string> menuItemsarr;
    std::vector<NS::Value::Dictionary> arrItemsdic;
    std::vector<std::int64_t> arrstructur;
    /// Null when the suite cannot be read; the screen then works in memory only.
    const std::shared_ptr<NS::UserDefaults> sharedDefaults;

private:
    NS::Value::Dictionary& itemAt(std::ptrdiff_t row);
};
