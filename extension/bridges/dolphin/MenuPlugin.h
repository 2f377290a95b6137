#pragma once

#include <KAbstractFileItemActionPlugin>
#include <QAction>
#include <QList>
#include <QMenu>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <memory>
#include <vector>

class KFileItemListProperties;

namespace MenuExtension {
struct MenuSettings;
}

namespace DolphinBridge {

struct Clicked;

/// What Dolphin asks for the actions of a menu, once a window. Nothing leaves it but what it returns.
class MenuPlugin : public KAbstractFileItemActionPlugin {
    Q_OBJECT

public:
    explicit MenuPlugin(QObject* parent, const QVariantList& arguments = {});
    ~MenuPlugin() override;

    QList<QAction*> actions(const KFileItemListProperties& items, QWidget* window) override;

private:
    struct Later {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    QList<QAction*> actionsFor(const MenuExtension::MenuSettings& settings,
                               const std::shared_ptr<const Clicked>& clicked, const QPointer<QWidget>& window);
    QMenu& newSubmenu(const QString& title, const QList<QAction*>& actions);
    QAction* placeForActions(const std::shared_ptr<const Clicked>& clicked, const QPointer<QWidget>& window);
    void fill(QAction& place, const std::shared_ptr<const Clicked>& clicked, const QPointer<QWidget>& window);

    /// The actions of the last menu: the host gives none back.
    std::unique_ptr<QObject, Later> m_offered;
    std::vector<std::unique_ptr<QMenu, Later>> m_submenus;
};

} // namespace DolphinBridge
