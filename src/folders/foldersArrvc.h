#pragma once

#include "folders/MonitoredFolders.h"
#include "platform/Alert.h"
#include "platform/Control.h"
#include "platform/OpenPanel.h"
#include "platform/Outlet.h"
#include "platform/TableView.h"
#include "platform/UserDefaults.h"
#include "platform/ViewController.h"

#include <memory>
#include <vector>

class ControllerRegistry;

/// The folders screen: the folders in which the extension is active, each with a switch; folders are added through
/// a panel and removed after a question. Main thread.
class foldersArrvc : public NS::ViewController,
                     public NS::TableViewDataSource,
                     public NS::TableViewDelegate,
                     public std::enable_shared_from_this<foldersArrvc> {
public:
    /// The registry, whose start window the sheets are attached to, must outlive the screen. `runBookmarks` is the
    /// process's one list.
    foldersArrvc(ControllerRegistry& registry, std::shared_ptr<RunBookmarks> runBookmarks);

    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;

    void btnAddItems(NS::Control& sender);
    void btnremoveitem(NS::Control& sender);
    /// Asks whether to remove the selected folder, without looking whether there is one.
    void alertforDelete();
    /// Removes the folder that is selected by now; none is fatal.
    void OKalert();
    void Cancelalert();
    std::ptrdiff_t numberOfRowsInTableView(NS::TableView& tableView) override;
    void tableView_acceptDrop(NS::TableView& tableView, const std::vector<NS::URL>& dropped) override;
    void alertFolderAlreadyAdded();
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn* tableColumn,
                                                        std::ptrdiff_t row) override;
    std::string tableView_typeSelectStringForTableColumn_row(NS::TableView& tableView,
                                                             const NS::TableColumn* tableColumn,
                                                             std::ptrdiff_t row) override;
    /// Flips the flag of the row that the sender's tag names.
    void checkboxActionWithSender(NS::Control& sender);

    MonitoredFolders folders;
    NS::Outlet<NS::TableView> tblview{"tblview"};
    /// Null when the suite cannot be read. Writes go through fresh handles.
    const std::shared_ptr<NS::UserDefaults> sharedDefaults;
    std::unique_ptr<NS::Alert> alert;
    std::unique_ptr<NS::Alert> alertAlreadyAdded;

private:
    void addChosenFolder(const NS::OpenPanel& panel);
    void addFolders(const std::vector<NS::URL>& urls);
    void endAlert();
    [[nodiscard]] const NS::Outlet<NS::Window>& mainWindow();

    ControllerRegistry& m_registry;
};
