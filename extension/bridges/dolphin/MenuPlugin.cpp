#include "extension/bridges/dolphin/MenuPlugin.h"

#include "extension/bridges/dolphin/Clicked.h"
#include "extension/bridges/dolphin/CompanionCopy.h"
#include "extension/bridges/dolphin/Guarded.h"
#include "extension/bridges/dolphin/Request.h"
#include "extension/menu/Menu.h"

#include <KFileItemListProperties>
#include <QIcon>
#include <QScreen>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace DolphinBridge {

namespace {

using MenuExtension::Menu;
using MenuExtension::MenuAction;
using MenuExtension::MenuSettings;

/// A title as it is: not with a letter underlined, nor in two columns.
QString shown(const std::string& title)
{
    return QString::fromStdString(title)
        .replace(QLatin1Char('&'), QLatin1String("&&"))
        .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

/// A menu that has grown while it is open may reach beyond the screen.
void keepOnScreen(QMenu& menu)
{
    const QScreen* const screen = menu.screen();
    if (!menu.isVisible() || screen == nullptr)
        return;
    const QRect all = screen->availableGeometry();
    const QRect shown = menu.geometry();
    menu.move(std::max(all.left(), std::min(shown.left(), all.right() - shown.width())),
              std::max(all.top(), std::min(shown.top(), all.bottom() - shown.height())));
}

} // namespace

MenuPlugin::MenuPlugin(QObject* parent, const QVariantList& arguments) : KAbstractFileItemActionPlugin(parent)
{
    Q_UNUSED(arguments);
}

MenuPlugin::~MenuPlugin()
{
    // There may be no event loop any more.
    delete m_submenu.release();
}

QList<QAction*> MenuPlugin::actions(const KFileItemListProperties& items, QWidget* window)
{
    QList<QAction*> actions;
    guarded([&] {
        m_submenu.reset();
        m_offered.reset(new QObject(this));
        const CompanionCopy& copy = CompanionCopy::shared();
        const auto settings = copy.settings();
        if (!settings && !copy.isWaiting())
            return;
        std::optional<Clicked> clicked = whatWasClicked(items, window);
        if (!clicked)
            return;
        const auto kept = std::make_shared<const Clicked>(std::move(*clicked));
        if (settings)
            actions = actionsFor(*settings, kept, window);
        else
            actions = {placeForActions(kept, window)};
    });
    return actions;
}

QList<QAction*> MenuPlugin::actionsFor(const MenuSettings& settings, const std::shared_ptr<const Clicked>& clicked,
                                       const QPointer<QWidget>& window)
{
    const Menu menu = MenuExtension::makeMenu(settings, clicked->selection());
    QList<QAction*> actions;
    for (const MenuAction* const offered : menu.actions) {
        auto* const action = new QAction(shown(offered->title), m_offered.get());
        if (menu.showIcons)
            action->setIcon(QIcon::fromTheme(QString::fromStdString(offered->icon)));
        connect(action, &QAction::triggered, action, [identifier = offered->identifier, clicked, window] {
            guarded([&] { request(identifier, clicked, CompanionCopy::shared().bus(), window); });
        });
        actions += action;
    }
    if (actions.isEmpty() || !menu.inSubmenu)
        return actions;
    m_submenu.reset(new QMenu(QString::fromLatin1(MenuExtension::submenuTitle)));
    m_submenu->addActions(actions);
    return {m_submenu->menuAction()};
}

QAction* MenuPlugin::placeForActions(const std::shared_ptr<const Clicked>& clicked, const QPointer<QWidget>& window)
{
    auto* const place = new QAction(m_offered.get());
    place->setVisible(false);
    connect(&CompanionCopy::shared(), &CompanionCopy::settled, place,
            [this, place, clicked, window] { guarded([&] { fill(*place, clicked, window); }); });
    return place;
}

void MenuPlugin::fill(QAction& place, const std::shared_ptr<const Clicked>& clicked, const QPointer<QWidget>& window)
{
    // Only the first answer, and only the last menu: none changes under the pointer.
    CompanionCopy::shared().disconnect(&place);
    const auto settings = CompanionCopy::shared().settings();
    if (!settings || place.parent() != m_offered.get())
        return;
    const QList<QAction*> actions = actionsFor(*settings, clicked, window);
    const QList<QWidget*> widgets = place.associatedWidgets();
    for (QWidget* const widget : widgets) {
        if (auto* const menu = qobject_cast<QMenu*>(widget)) {
            menu->insertActions(&place, actions);
            keepOnScreen(*menu);
        }
    }
}

} // namespace DolphinBridge
