#include "platform/linux/scenes/WidgetScene.h"

#include "platform/FatalError.h"

#include <QEvent>

namespace LinuxDesktop {

WidgetScene::WidgetScene(std::unique_ptr<QWidget> root, NS::Controller& controller)
    : m_root(root.release()), m_viewController(dynamic_cast<NS::ViewController*>(&controller))
{
    if (m_viewController)
        m_root->installEventFilter(this);
}

WidgetScene::~WidgetScene()
{
    // Its widgets disappear, but the controller is half gone by now.
    if (m_root)
        m_root->removeEventFilter(this);
    delete m_root;
}

NS::Rect WidgetScene::frame() const
{
    if (!m_root)
        return {};
    const QRect place = m_root->geometry();
    return {static_cast<double>(place.x()),
            static_cast<double>(place.y()),
            {static_cast<double>(place.width()), static_cast<double>(place.height())}};
}

QWidget& WidgetScene::rootOf(const NS::Controller& controller)
{
    const auto* scene = dynamic_cast<const WidgetScene*>(controller.scene());
    if (!scene || !scene->m_root)
        NS::fatalError("a controller without a scene was to be shown");
    return *scene->m_root;
}

bool WidgetScene::eventFilter(QObject*, QEvent* event)
{
    // Spontaneous ones come of a window that is minimised or restored.
    if (event->spontaneous())
        return false;
    if (event->type() == QEvent::Show) {
        m_viewController->viewWillAppear();
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_root && m_root->isVisible())
                    m_viewController->viewDidAppear();
            },
            Qt::QueuedConnection);
    } else if (event->type() == QEvent::Hide) {
        m_viewController->viewWillDisappear();
    }
    return false;
}

} // namespace LinuxDesktop
