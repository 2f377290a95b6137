#include "platform/linux/scenes/WidgetStoryboard.h"

#include "platform/CollectionView.h"
#include "platform/FatalError.h"
#include "platform/TableView.h"
#include "platform/WindowController.h"
#include "platform/linux/scenes/CollectionGrid.h"
#include "platform/linux/scenes/FolderDrops.h"
#include "platform/linux/scenes/ImageWidget.h"
#include "platform/linux/scenes/MainWindow.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/Scenes.h"
#include "platform/linux/scenes/TabPages.h"
#include "platform/linux/scenes/WidgetScene.h"

namespace LinuxDesktop {

namespace {

template<class T>
T makeObject(const NS::ClassTable::Makers<T>& makers, std::string_view className)
{
    const auto maker = makers.find(className);
    if (maker == makers.end())
        NS::fatalError("there is no class \"" + std::string(className) + "\" to run a scene");
    return maker->second();
}

/// What the keyboard stops at before a button, as it is shown.
QWidget* controlBefore(QWidget& button)
{
    QWidget* before = button.previousInFocusChain();
    while (before != &button &&
           (!before->isVisible() || !before->isEnabled() || before->focusPolicy() == Qt::NoFocus))
        before = before->previousInFocusChain();
    return before;
}

/// A button may name, in the property "selectionOf", the list that something has to be selected in.
void enableWithSelection(PushButton& button, const QWidget& root)
{
    const QString name = button.property("selectionOf").toString();
    if (name.isEmpty())
        return;
    const auto* list = root.findChild<RowList*>(name);
    if (!list)
        NS::fatalError("a button is for the selection of a list that does not exist");
    button.setEnabled(false);
    QObject::connect(list, &RowList::selectionChanged, &button, [&button](bool isSelected) {
        // The keyboard stays near the button, where the toolkit would lead it on to the window's first control.
        if (!isSelected && button.window()->focusWidget() == &button)
            controlBefore(button)->setFocus(Qt::OtherFocusReason);
        button.setEnabled(isSelected);
    });
}

} // namespace

std::shared_ptr<NS::Controller> WidgetStoryboard::instantiateControllerWithIdentifier(std::string_view identifier)
{
    std::unique_ptr<QWidget> root = makeScene(identifier);
    if (!root)
        return nullptr;
    std::shared_ptr<NS::Controller> controller = makeObject(m_classes.controllers, identifier);
    furnish(*root, *controller);

    SceneConnections connections(root.get());
    controller->connect(connections);
    connections.wire(m_responders);
    wakeButtons(*root);
    controller->setScene(std::make_unique<WidgetScene>(std::move(root), *controller));

    if (auto* screen = dynamic_cast<NS::ViewController*>(controller.get()))
        screen->viewDidLoad();
    else if (auto* window = dynamic_cast<NS::WindowController*>(controller.get()))
        window->windowDidLoad();
    return controller;
}

void WidgetStoryboard::wakeButtons(QWidget& root)
{
    for (auto* button : root.findChildren<PushButton*>()) {
        const std::string className = button->property("customClass").toString().toStdString();
        if (!className.empty())
            button->setCustomButton(makeObject(m_classes.buttons, className));
    }
}

void WidgetStoryboard::furnish(QWidget& root, NS::Controller& controller)
{
    for (auto* image : root.findChildren<ImageWidget*>())
        image->setStore(m_images);
    for (auto* list : root.findChildren<RowList*>()) {
        list->setRowMaker([this](std::string_view identifier) { return makeRow(identifier); });
        list->setDataSource(dynamic_cast<NS::TableViewDataSource*>(&controller));
        list->setDelegate(dynamic_cast<NS::TableViewDelegate*>(&controller));
        auto* source = dynamic_cast<NS::TableViewDataSource*>(&controller);
        if (source && list->property("takesFolders").toBool()) {
            new FolderDrops(root, m_refusal, [list, source](const std::vector<NS::URL>& folders) {
                source->tableView_acceptDrop(*list, folders);
            });
        }
    }
    for (auto* button : root.findChildren<PushButton*>())
        enableWithSelection(*button, root);
    for (auto* grid : root.findChildren<CollectionGrid*>()) {
        grid->setItemMaker([this](std::string_view identifier) {
            return std::dynamic_pointer_cast<NS::CollectionViewItem>(instantiateControllerWithIdentifier(identifier));
        });
        grid->setDataSource(dynamic_cast<NS::CollectionViewDataSource*>(&controller));
    }
    for (auto* tabs : root.findChildren<TabPages*>()) {
        tabs->setLoader([this](std::string_view scene) {
            return std::dynamic_pointer_cast<NS::ViewController>(instantiateControllerWithIdentifier(scene));
        });
    }
    if (auto* window = qobject_cast<MainWindow*>(&root)) {
        window->setDelegate(dynamic_cast<NS::WindowDelegate*>(&controller));
        for (auto* entry : window->findChildren<QAction*>()) {
            if (entry->property("action").toString() == QLatin1String("performClose:")) {
                entry->setProperty("action", QVariant());
                QObject::connect(entry, &QAction::triggered, window, &QWidget::close);
            }
        }
    }
}

std::unique_ptr<RowWidget> WidgetStoryboard::makeRow(std::string_view identifier)
{
    std::unique_ptr<QWidget> root = makeScene(identifier);
    auto* row = qobject_cast<RowWidget*>(root.get());
    if (!row)
        return nullptr;
    std::unique_ptr<NS::TableCellView> cell = makeObject(m_classes.cells, identifier);
    for (auto* image : row->findChildren<ImageWidget*>())
        image->setStore(m_images);
    SceneConnections connections(row);
    cell->connect(connections);
    connections.wire(m_responders);
    row->setCell(std::move(cell));
    root.release();
    return std::unique_ptr<RowWidget>(row);
}

} // namespace LinuxDesktop
