#include "platform/linux/widgets/WidgetScene.h"

#include "platform/FatalError.h"

namespace LinuxDesktop {

WidgetScene::~WidgetScene()
{
    delete m_root;
}

QWidget& WidgetScene::rootOf(const NS::Controller& controller)
{
    const auto* scene = dynamic_cast<const WidgetScene*>(controller.scene());
    if (!scene || !scene->m_root)
        NS::fatalError("a controller without a scene was to be shown");
    return *scene->m_root;
}

} // namespace LinuxDesktop
