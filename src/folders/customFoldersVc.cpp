#include "folders/customFoldersVc.h"

#include "platform/FatalError.h"
#include "platform/Platform.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/SettingsKeys.h"
#include "settings/SharedSuite.h"
#include "ui/tblcell.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// The stored list; nothing when there is none or an element is no text.
std::optional<std::vector<std::string>> storedFolders(NS::UserDefaults& suite)
{
    const auto array = suite.arrayForKey(SettingsKey::arrCustomFoldersUrls);
    if (!array || !std::ranges::all_of(*array, [](const NS::Value& element) { return element.string(); }))
        return std::nullopt;
    std::vector<std::string> folders;
    folders.reserve(array->size());
    for (const NS::Value& element : *array)
        folders.push_back(*element.string());
    return folders;
}

} // namespace

customFoldersVc::customFoldersVc() : sharedDefaults(openSharedSuite()) {}

void customFoldersVc::connect(NS::Connections& connections)
{
    connections.outlet("tblview", tblview);
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
        if (auto folders = storedFolders(*sharedDefaults))
            arrCustomFolders = std::move(*folders);
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
    requireRow(row);
    const NS::URL url = NS::URL::fileURLWithPath(arrCustomFolders[static_cast<std::size_t>(row)]);
    cell->lbltitle->setStringValue(url.lastPathComponent());
    cell->lbltitle->setToolTip(url.path());
    cell->imgview->setImage(NS::platform().sharedWorkspace().iconForFile(url.path()));
    cell->btnDelete->setTag(row);
    cell->btnDelete->setAction([this](NS::Control& sender) { brnDeleteClickedWithSender(sender); });
    return cell;
}

void customFoldersVc::brnDeleteClickedWithSender(NS::Control& sender)
{
    requireRow(sender.tag());
    arrCustomFolders.erase(arrCustomFolders.begin() + sender.tag());
    if (sharedDefaults) {
        sharedDefaults->setValue_forKeyPath(NS::Value::Array(arrCustomFolders.begin(), arrCustomFolders.end()),
                                            SettingsKey::arrCustomFoldersUrls);
        sharedDefaults->synchronize();
    }
    tblview->reloadData();
}

void customFoldersVc::requireRow(std::ptrdiff_t row) const
{
    if (row < 0 || row >= std::ssize(arrCustomFolders))
        NS::fatalError("the custom folders have no row " + std::to_string(row));
}
