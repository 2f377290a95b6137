#include "menu/ViewController.h"

#include "menu/IconTable.h"
#include "menu/MenuRecord.h"
#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "settings/ApplicationVersion.h"
#include "settings/MenuCatalogue.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"
#include "ui/tblcell.h"

#include <utility>

ViewController::ViewController() : savekey(Settings::save14.key), sharedDefaults(openSharedSuite())
{
    for (const CatalogueRow& action : menuCatalogue)
        menuItemsarr.emplace_back(action.title);
}

void ViewController::connect(NS::Connections& connections)
{
    connections.outlet(tblview);
    connections.action("btngetPermission:", [this](NS::Control& sender) { btngetPermission(sender); });
}

void ViewController::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    MenuRecord record = loadMenuRecord(menuItemsarr, savekey, sharedDefaults.get(), applicationVersion());
    arrItemsdic = std::move(record.items);
    arrstructur = std::move(record.flags);
}

std::ptrdiff_t ViewController::numberOfRowsInTableView(NS::TableView&)
{
    return std::ssize(arrItemsdic);
}

NS::TableCellView* ViewController::tableView_viewForTableColumn_row(NS::TableView& tableView, const NS::TableColumn*,
                                                                    std::ptrdiff_t row)
{
    auto* cell = dynamic_cast<tblcell*>(tableView.makeViewWithIdentifier_owner("tblcell", nullptr));
    if (!cell)
        return nullptr;
    const NS::Value::Dictionary& item = itemAt(row);
    const std::string title = menuItemTitle(item);
    cell->lbltitle->setStringValue(NS::LocalizedString("MenuCatalogue", title));
    cell->checkbox->setState(menuItemState(item) ? NS::ControlState::On : NS::ControlState::Off);
    cell->imgview->setImage(iconTable().imageForTitle(title));
    cell->checkbox->setTag(row);
    cell->checkbox->setAction([this](NS::Control& sender) { checkboxActionWithSender(sender); });
    return cell;
}

std::string ViewController::tableView_typeSelectStringForTableColumn_row(NS::TableView&, const NS::TableColumn*,
                                                                         std::ptrdiff_t row)
{
    return menuItemTitle(itemAt(row));
}

void ViewController::checkboxActionWithSender(NS::Control& sender)
{
    toggleMenuItem(itemAt(sender.tag()));
    tblview->reloadData();
    if (sharedDefaults)
        storeMenuItems(arrItemsdic, *sharedDefaults);
}

void ViewController::btngetPermission(NS::Control&) {}

const std::any& ViewController::representedObject() const
{
    return NS::ViewController::representedObject();
}

void ViewController::setRepresentedObject(std::any object)
{
    NS::ViewController::setRepresentedObject(std::move(object));
}

bool ViewController::panel_shouldEnableURL(NS::OpenPanel&, const NS::URL&)
{
    return true;
}

NS::Value::Dictionary& ViewController::itemAt(std::ptrdiff_t row)
{
    if (row < 0 || row >= std::ssize(arrItemsdic))
        NS::fatalError("the menu items have no row " + std::to_string(row));
    return arrItemsdic[static_cast<std::size_t>(row)];
}
