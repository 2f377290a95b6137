#include "folders/customFoldersVc.h"

#include "platform/FatalError.h"
#include "platform/Platform.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Reading.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"
#include "ui/tblcell.h"

#include <optional>
#include <utility>

customFoldersVc::customFoldersVc() : sharedDefaults(openSharedSuite()) {}

void customFoldersVc::connect(NS::Connections& connections)
{
    connections.outlet(tblview);
}

void customFoldersVc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    NS::platform().defaultCenter().addObserver_name_object(
        [this] { reloadCustomFolders(); }, NotificationName::ReloadCustomFolders, Deployment::extensionIdentifier);
}

void customFoldersVc::viewWillAppear()
{
    reloadCustomFolders();
}

void customFoldersVc::reloadCustomFolders()
{
    if (sharedDefaults) {
        const auto stored = sharedDefaults->arrayForKey(Settings::arrCustomFoldersUrls.key);
        if (auto folders = stored ? readWhole(Settings::arrCustomFoldersUrls, *stored) : std::nullopt)
            arrCustomFolders = *std::move(folders);
    }
    tblview->reloadData();
}

std::ptrdiff_t customFoldersVc::numberOfRowsInTableView(NS::TableView&)
{
    return std::ssize(arrCustomFolders);
}

NS::TableCellView* customFoldersVc::tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn*,
                                                                     std::ptrdiff_t row)
{
    auto* cell = dynamic_cast<tblcell*>(tableView.makeViewWithIdentifier_owner("tblcell", nullptr));
    if (!cell)
        return nullptr;
    const NS::URL url = urlAt(row);
    cell->lbltitle->setStringValue(url.lastPathComponent());
    cell->lbltitle->setToolTip(url.path());
    cell->imgview->setImage(NS::platform().sharedWorkspace().iconForFile(url.path()));
    cell->btnDelete->setTag(row);
    cell->btnDelete->setAction([this](NS::Control& sender) { brnDeleteClickedWithSender(sender); });
    return cell;
}

std::string customFoldersVc::tableView_typeSelectStringForTableColumn_row(NS::TableView&, const NS::TableColumn*,
                                                                          std::ptrdiff_t row)
{
    return urlAt(row).lastPathComponent();
}

void customFoldersVc::brnDeleteClickedWithSender(NS::Control& sender)
{
    requireRow(sender.tag());
    arrCustomFolders.erase(arrCustomFolders.begin() + sender.tag());
    if (sharedDefaults)
        store(arrCustomFolders, *sharedDefaults, Settings::arrCustomFoldersUrls.key);
    tblview->reloadData();
}

NS::URL customFoldersVc::urlAt(std::ptrdiff_t row) const
{
    requireRow(row);
    return NS::URL::fileURLWithPath(arrCustomFolders[static_cast<std::size_t>(row)]);
}

void customFoldersVc::requireRow(std::ptrdiff_t row) const
{
    if (row < 0 || row >= std::ssize(arrCustomFolders))
        NS::fatalError("the custom folders have no row " + std::to_string(row));
}
