#include "folders/foldersArrvc.h"

#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "platform/Print.h"
#include "platform/WindowController.h"
#include "registry/ControllerRegistry.h"
#include "settings/SharedSuite.h"
#include "ui/FolderPanel.h"
#include "ui/tblcell.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

std::string listed(const std::vector<NS::URL>& urls)
{
    std::string text;
    for (const NS::URL& url : urls)
        text += (text.empty() ? "" : ", ") + url.absoluteString();
    return '[' + text + ']';
}

} // namespace

foldersArrvc::foldersArrvc(ControllerRegistry& registry, std::shared_ptr<RunBookmarks> runBookmarks)
    : folders(std::move(runBookmarks)), sharedDefaults(openSharedSuite()), alert(NS::platform().makeAlert()),
      alertAlreadyAdded(NS::platform().makeAlert()), m_registry(registry)
{}

void foldersArrvc::connect(NS::Connections& connections)
{
    connections.outlet(tblview);
    connections.action("btnAddItems:", [this](NS::Control& sender) { btnAddItems(sender); });
    connections.action("btnremoveitem:", [this](NS::Control& sender) { btnremoveitem(sender); });
}

void foldersArrvc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    folders.load(sharedDefaults.get());
}

void foldersArrvc::btnAddItems(NS::Control&)
{
    const std::shared_ptr<NS::OpenPanel> panel = makeFolderPanel(FolderSelection::One);
    panel->beginSheetModalForWindow_completionHandler(*mainWindow(),
                                                      [self = shared_from_this(), panel](int response) {
                                                          if (response == NS::ModalResponseOK)
                                                              self->addChosenFolder(*panel);
                                                      });
}

void foldersArrvc::addChosenFolder(const NS::OpenPanel& panel)
{
    NS::print(listed(panel.URLs()));
    const auto url = panel.URL();
    if (!url)
        NS::fatalError("the panel was confirmed without a folder");
    addFolders({*url});
}

void foldersArrvc::addFolders(const std::vector<NS::URL>& urls)
{
    const auto present = std::ranges::count_if(
        urls, [&](const NS::URL& url) { return folders.add(url) == MonitoredFolders::Added::AlreadyPresent; });
    if (present < std::ssize(urls))
        tblview->reloadData();
    if (present > 0)
        alertFolderAlreadyAdded();
}

void foldersArrvc::tableView_acceptDrop(NS::TableView&, const std::vector<NS::URL>& dropped)
{
    NS::print(listed(dropped));
    addFolders(dropped);
}

void foldersArrvc::btnremoveitem(NS::Control&)
{
    if (!folders.arrstate.empty() && tblview->selectedRow() != -1)
        alertforDelete();
}

void foldersArrvc::alertforDelete()
{
    alert = NS::platform().makeAlert();
    alert->setAlertStyle(NS::AlertStyle::Warning);
    alert->setMessageText(NS::LocalizedString("foldersArrvc", "Remove selected folder?"));
    alert->setInformativeText(
        NS::LocalizedString("foldersArrvc", "Are you sure you want to remove the selected folder."));
    alert->addButtonWithTitle(NS::LocalizedString("foldersArrvc", "OK"));
    alert->addButtonWithTitle(NS::LocalizedString("foldersArrvc", "Cancel"));
    const std::vector<NS::Button*> buttons = alert->buttons();
    buttons.at(0)->setAction([this](NS::Control&) { OKalert(); });
    buttons.at(1)->setAction([this](NS::Control&) { Cancelalert(); });
    alert->beginSheetModalForWindow(*mainWindow());
}

void foldersArrvc::OKalert()
{
    endAlert();
    folders.removeAt(tblview->selectedRow());
    tblview->reloadData();
}

void foldersArrvc::Cancelalert()
{
    endAlert();
}

void foldersArrvc::endAlert()
{
    if (const NS::Outlet<NS::Window>& window = mainWindow())
        window->endSheet(alert->window());
}

std::ptrdiff_t foldersArrvc::numberOfRowsInTableView(NS::TableView&)
{
    return folders.count();
}

void foldersArrvc::alertFolderAlreadyAdded()
{
    alertAlreadyAdded = NS::platform().makeAlert();
    alertAlreadyAdded->setAlertStyle(NS::AlertStyle::Informational);
    alertAlreadyAdded->setMessageText(NS::LocalizedString(
        "foldersArrvc", "Some of the folders can not be added because they are already added to the Folders list."));
    alertAlreadyAdded->addButtonWithTitle(NS::LocalizedString("foldersArrvc", "OK"));
    alertAlreadyAdded->beginSheetModalForWindow(*mainWindow());
}

NS::TableCellView* foldersArrvc::tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn*,
                                                                  std::ptrdiff_t row)
{
    auto* cell = dynamic_cast<tblcell*>(tableView.makeViewWithIdentifier_owner("tblcell", nullptr));
    if (!cell)
        return nullptr;
    const std::string& path = folders.pathAt(row);
    cell->lbltitle->setStringValue(path);
    cell->imgview->setImage(NS::platform().sharedWorkspace().iconForFile(path));
    cell->checkbox->setState(folders.isActiveAt(row) ? NS::ControlState::On : NS::ControlState::Off);
    cell->checkbox->setTag(row);
    cell->checkbox->setAction([this](NS::Control& sender) { checkboxActionWithSender(sender); });
    return cell;
}

std::string foldersArrvc::tableView_typeSelectStringForTableColumn_row(NS::TableView&, const NS::TableColumn*,
                                                                       std::ptrdiff_t row)
{
    return NS::URL::fileURLWithPath(folders.pathAt(row)).lastPathComponent();
}

void foldersArrvc::checkboxActionWithSender(NS::Control& sender)
{
    folders.toggleAt(sender.tag());
    tblview->reloadData();
    folders.storeFlags();
}

const NS::Outlet<NS::Window>& foldersArrvc::mainWindow()
{
    return m_registry.controller<NS::WindowController>(ControllerIdentifier::mainStartWindow)->window;
}
