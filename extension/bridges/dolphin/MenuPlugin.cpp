#include "extension/bridges/dolphin/MenuPlugin.h"

#include "extension/bridges/dolphin/Clicked.h"
#include "extension/bridges/dolphin/CompanionCopy.h"
#include "extension/bridges/dolphin/Guarded.h"
#include "extension/bridges/dolphin/Request.h"
#include "extension/menu/Menu.h"

#include <KFileItemListProperties>
#include <QIcon>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace DolphinBridge {

namespace {

using MenuExtension::Menu;
using MenuExtension::MenuSettings;
using MenuExtension::Target;

/// A title as it is: not with a letter underlined, nor in two columns.
QString shown(const std::string& title)
{
    return QString::fromStdString(title)
        .replace(QLatin1Char('&'), QLatin1String("&&"))
        .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

/// A text as it is, in a place that takes marks too.
QString asTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
                                     : text;
}

/// For each target an action with it, and one that leaves it to be asked for.
template<class NewAction>
QList<QAction*> actionsOf(std::span<const Target> targets, const NewAction& newAction, const Menu& menu)
{
    QList<QAction*> actions;
    for (const Target& target : targets) {
        actions += newAction(shown(target.title), target.path);
        actions.last()->setToolTip(asTip(QString::fromStdString(target.description)));
        if (menu.showIcons)
            actions.last()->setIcon(QIcon::fromTheme(QString::fromLatin1(MenuExtension::targetIcon)));
    }
    actions += newAction(shown(menu.otherFolder->title), {});
    actions.last()->setToolTip(asTip(QString::fromStdString(menu.otherFolder->description)));
    return actions;
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
    for (auto& submenu : m_submenus)
        delete submenu.release();
}

QList<QAction*> MenuPlugin::actions(const KFileItemListProperties& items, QWidget* window)
{
    QList<QAction*> actions;
    guarded([&] {
        m_submenus.clear();
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
    for (const auto& [offered, targets] : menu.entries) {
        const auto newAction = [&, identifier = offered->identifier](const QString& title,
                                                                     const std::string& target) {
            auto* const action = new QAction(title, m_offered.get());
            connect(action, &QAction::triggered, action, [identifier, target, clicked, window] {
                guarded([&] { request({identifier, target}, clicked, CompanionCopy::shared().bus(), window); });
            });
            return action;
        };
        const QString title = shown(offered->title);
        QAction* action = nullptr;
        if (targets.empty()) {
            action = newAction(title, {});
        } else {
            QMenu& folders = newSubmenu(title, actionsOf(targets, newAction, menu));
            folders.setToolTipsVisible(true);
            action = folders.menuAction();
        }
        if (menu.showIcons)
            action->setIcon(QIcon::fromTheme(QString::fromStdString(offered->icon)));
        actions += action;
    }
    if (actions.isEmpty() || !menu.inSubmenu)
        return actions;
    return {newSubmenu(QString::fromLatin1(MenuExtension::submenuTitle), actions).menuAction()};
}

QMenu& MenuPlugin::newSubmenu(const QString& title, const QList<QAction*>& actions)
{
    QMenu& menu = *m_submenus.emplace_back(new QMenu(title));
    menu.addActions(actions);
    return menu;
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
