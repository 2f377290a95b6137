#include "tests/platform/look/Controls.h"

#include "platform/TableView.h"
#include "platform/linux/scenes/CheckBox.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/MenuButton.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/Scenes.h"

#include "extensions/Switch.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace LinuxDesktop {

namespace {

using enum ControlState;

constexpr QSize room(196, 60);

/// A control that is one widget.
template<class Widget>
class WidgetSpecimen : public Specimen {
public:
    using Doing = std::function<void(Widget&)>;

    explicit WidgetSpecimen(const Doing& setUp = {}, Doing select = {})
        : m_widget(new Widget(&m_window)), m_select(std::move(select))
    {
        m_window.setFixedSize(room);
        m_window.setFocusPolicy(Qt::StrongFocus);
        auto* column = new QVBoxLayout(&m_window);
        column->addWidget(m_widget, 0, Qt::AlignCenter);
        if (setUp)
            setUp(*m_widget);
    }

    QWidget& window() override { return m_window; }
    QWidget& target() override { return *m_widget; }
    void select() override { m_select(*m_widget); }

protected:
    [[nodiscard]] Widget& widget() { return *m_widget; }

private:
    QWidget m_window;
    Widget* m_widget;
    Doing m_select;
};

class TabSpecimen : public WidgetSpecimen<QTabBar> {
public:
    TabSpecimen()
        : WidgetSpecimen([](QTabBar& bar) {
              bar.setDrawBase(false);
              bar.addTab(QStringLiteral("Other"));
              bar.addTab(QStringLiteral("Folders"));
          })
    {}

    QPoint place() override { return part().translated(-widget().pos()).center(); }
    // The tab with the keyboard is the selected one.
    void focus() override
    {
        select();
        WidgetSpecimen::focus();
    }
    void disable() override { widget().setTabEnabled(tab, false); }
    void select() override { widget().setCurrentIndex(tab); }
    QRect part() override { return widget().tabRect(tab).translated(widget().pos()); }

private:
    static constexpr int tab = 1;
};

/// A list of one row: one that can be selected, or one with a checkbox.
class RowSpecimen : public Specimen, public NS::TableViewDataSource, public NS::TableViewDelegate {
public:
    explicit RowSpecimen(bool isSelectable) : m_list(new RowList(&m_window)), m_isSelectable(isSelectable)
    {
        m_window.setFixedSize(room);
        m_window.setFocusPolicy(Qt::StrongFocus);
        auto* column = new QVBoxLayout(&m_window);
        column->setContentsMargins(8, 6, 8, 6);
        column->addWidget(m_list);
        m_list->setProperty("selectable", isSelectable);
        m_list->setProperty("hiddenInRows", isSelectable ? QStringLiteral("checkbox btnDelete imgview")
                                                         : QStringLiteral("btnDelete imgview"));
        m_list->setDataSource(this);
        m_list->setDelegate(this);
        m_list->setRowMaker([](std::string_view identifier) {
            std::unique_ptr<RowWidget> row(qobject_cast<RowWidget*>(makeScene(identifier).release()));
            row->setCell(std::make_unique<NS::TableCellView>());
            return row;
        });
    }

    QWidget& window() override { return m_window; }
    QWidget& target() override { return *m_list->rowsInSight().front(); }
    QPoint place() override { return {20, target().height() / 2}; }
    void focus() override { m_list->rowsInSight().front()->stops().front()->setFocus(Qt::OtherFocusReason); }
    void disable() override { m_list->setEnabled(false); }
    void select() override { QTest::mouseClick(&target(), Qt::LeftButton, {}, place()); }

    std::ptrdiff_t numberOfRowsInTableView(NS::TableView&) override { return 1; }
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& list, const NS::TableColumn*,
                                                        std::ptrdiff_t) override
    {
        NS::TableCellView* cell = list.makeViewWithIdentifier_owner("tblcell", nullptr);
        m_list->viewport()->findChild<Label*>()->setStringValue(m_isSelectable ? "Pictures" : "Copy Path");
        return cell;
    }

private:
    QWidget m_window;
    RowList* m_list;
    bool m_isSelectable;
};

/// A row of the toolkit's own views, as file choosers and the windows of actions have them.
class ItemSpecimen : public WidgetSpecimen<QListWidget> {
public:
    ItemSpecimen()
        : WidgetSpecimen(
              [](QListWidget& list) {
                  list.addItem(QStringLiteral("Harbour.jpg"));
                  list.setFixedSize(160, 40);
              },
              [](QListWidget& list) { list.setCurrentRow(0); })
    {}

    QWidget& target() override { return *widget().viewport(); }
    QPoint place() override { return widget().visualItemRect(widget().item(0)).center(); }
    void focus() override
    {
        widget().setCurrentRow(0, QItemSelectionModel::NoUpdate);
        widget().setFocus(Qt::TabFocusReason);
    }
    void disable() override { widget().item(0)->setFlags(Qt::NoItemFlags); }
};

class MenuItemSpecimen : public Specimen {
public:
    MenuItemSpecimen() : m_item(m_menu.addAction(QStringLiteral("New Folder")))
    {
        m_menu.addAction(QStringLiteral("Show Hidden Files"));
        m_item->setCheckable(true);
    }

    QWidget& window() override { return m_menu; }
    QWidget& target() override { return m_menu; }
    QPoint place() override { return part().center(); }
    void focus() override { m_menu.setActiveAction(m_item); }
    void disable() override { m_item->setEnabled(false); }
    void select() override { m_item->setChecked(true); }
    QRect part() override { return m_menu.actionGeometry(m_item); }

private:
    QMenu m_menu;
    QAction* m_item;
};

template<class Widget>
Control control(const char* name, std::vector<ControlState> states, std::function<void(Widget&)> setUp,
                std::function<void(Widget&)> select = {})
{
    return {QString::fromLatin1(name), std::move(states), [setUp = std::move(setUp), select = std::move(select)] {
                return std::make_unique<WidgetSpecimen<Widget>>(setUp, select);
            }};
}

/// An icon of one colour, as most of those are that controls have.
QIcon arrowUp()
{
    constexpr int extent = 22;
    QPixmap arrow(extent * 2, extent * 2);
    arrow.setDevicePixelRatio(2.0);
    arrow.fill(Qt::transparent);
    QPainter painter(&arrow);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QApplication::palette().color(QPalette::WindowText), 2.0));
    painter.drawPolyline(QPolygonF{{{3.0, 15.0}, {11.0, 7.0}, {19.0, 15.0}}});
    return arrow;
}

std::function<void(CheckBox&)> checkBoxThatIs(bool on)
{
    return [on](CheckBox& box) {
        box.setText(QStringLiteral("Show icons"));
        box.setChecked(on);
    };
}

std::function<void(ExtensionsTool::Switch&)> switchThatIs(bool on)
{
    return [on](ExtensionsTool::Switch& widget) { widget.setOn(on); };
}

std::vector<Control> buttons()
{
    const std::vector<ControlState> states{Resting, Hovered, Pressed, Focused, Disabled};
    const std::vector<ControlState> allStates{Resting, Hovered, Pressed, Focused, Disabled, Selected};
    return {
        control<PushButton>("Button", states, [](PushButton& button) { button.setText(QStringLiteral("Choose…")); }),
        control<PushButton>("Primary button", states,
                            [](PushButton& button) {
                                button.setText(QStringLiteral("Resize"));
                                button.setProperty("primary", true);
                            }),
        control<PushButton>("Flat button", states,
                            [](PushButton& button) {
                                button.setText(QStringLiteral("3 troubles"));
                                button.setFlat(true);
                            }),
        control<QToolButton>(
            "Tool button", allStates,
            [](QToolButton& button) {
                button.setIcon(arrowUp());
                button.setIconSize({22, 22});
                button.setMinimumSize(36, 36);
                button.setAutoRaise(true);
                button.setFocusPolicy(Qt::StrongFocus);
                button.setCheckable(true);
            },
            [](QToolButton& button) { button.setChecked(true); }),
        control<MenuButton>("Menu button", {Resting, Hovered, Focused},
                            [](MenuButton& button) { button.setFocusPolicy(Qt::StrongFocus); }),
        control<CheckBox>("Checkbox", allStates, checkBoxThatIs(false), [](CheckBox& box) { box.setChecked(true); }),
        control<CheckBox>("Checkbox, on", states, checkBoxThatIs(true)),
        control<ExtensionsTool::Switch>("Switch", allStates, switchThatIs(false),
                                        [](ExtensionsTool::Switch& widget) { widget.setOn(true); }),
        control<ExtensionsTool::Switch>("Switch, on", states, switchThatIs(true)),
    };
}

std::vector<Control> fields()
{
    return {
        control<QLineEdit>(
            "Text field", {Resting, Hovered, Focused, Disabled, Selected},
            [](QLineEdit& line) { line.setText(QStringLiteral("Holiday")); },
            [](QLineEdit& line) {
                line.setFocus();
                line.selectAll();
            }),
        control<QComboBox>("Combo box", {Resting, Hovered, Pressed, Focused, Disabled},
                           [](QComboBox& box) { box.addItem(QStringLiteral("For a screen")); }),
        control<QSpinBox>("Number field", {Resting, Hovered, Focused, Disabled},
                          [](QSpinBox& box) {
                              box.setRange(0, 9000);
                              box.setValue(1920);
                          }),
        control<QSlider>("Slider", {Resting, Hovered, Pressed, Focused, Disabled},
                         [](QSlider& slider) {
                             slider.setOrientation(Qt::Horizontal);
                             slider.setFixedWidth(140);
                             slider.setRange(0, 10);
                             slider.setValue(5);
                         }),
    };
}

/// Takes the pointer to where it is on no control.
void awayFrom(QWidget& window)
{
    QTest::mouseMove(&window, {1, 1});
    QCoreApplication::processEvents();
}

void bring(Specimen& specimen, ControlState state)
{
    specimen.window().setAttribute(Qt::WA_KeyboardFocusChange, state == Focused);
    switch (state) {
    case Resting:
        break;
    case Pressed:
        QTest::mouseMove(&specimen.target(), specimen.place());
        QTest::mousePress(&specimen.target(), Qt::LeftButton, {}, specimen.place());
        break;
    case Hovered:
        QTest::mouseMove(&specimen.target(), specimen.place());
        break;
    case Focused:
        specimen.focus();
        break;
    case Disabled:
        specimen.disable();
        break;
    case Selected:
        specimen.select();
        break;
    }
}

} // namespace

QString nameOf(ControlState state)
{
    switch (state) {
    case Resting:
        return QStringLiteral("At rest");
    case Hovered:
        return QStringLiteral("Hover");
    case Pressed:
        return QStringLiteral("Pressed");
    case Focused:
        return QStringLiteral("Focus");
    case Disabled:
        return QStringLiteral("Disabled");
    case Selected:
        return QStringLiteral("Selected, on");
    }
    return {};
}

std::vector<Control> controls()
{
    std::vector<Control> all = buttons();
    const auto add = [&all](const char* name, std::vector<ControlState> states, auto make) {
        all.push_back({QString::fromLatin1(name), std::move(states), std::move(make)});
    };
    add("Tab", {Resting, Hovered, Pressed, Focused, Disabled, Selected}, std::make_unique<TabSpecimen>);
    add("Row to select", {Resting, Hovered, Pressed, Focused, Selected},
        [] { return std::make_unique<RowSpecimen>(true); });
    add("Row to switch", {Resting, Hovered, Pressed, Focused}, [] { return std::make_unique<RowSpecimen>(false); });
    add("Row of a view", {Resting, Hovered, Focused, Disabled, Selected}, std::make_unique<ItemSpecimen>);
    for (Control& field : fields())
        all.push_back(std::move(field));
    add("Menu item", {Resting, Hovered, Pressed, Disabled, Selected}, std::make_unique<MenuItemSpecimen>);
    return all;
}

QImage pictureOf(const Control& control, ControlState state)
{
    const std::unique_ptr<Specimen> specimen = control.make();
    QWidget& window = specimen->window();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {};
    if (!window.isActiveWindow() && window.windowType() != Qt::Popup) {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            return {};
    }
    window.setFocus();
    awayFrom(window);
    bring(*specimen, state);
    QCoreApplication::processEvents();
    const QImage picture = window.grab(specimen->part()).toImage();
    if (state == Pressed)
        QTest::mouseRelease(&specimen->target(), Qt::LeftButton, {}, specimen->place());
    awayFrom(window);
    return picture;
}

} // namespace LinuxDesktop
