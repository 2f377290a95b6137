#pragma once

#include "platform/ClassTable.h"
#include "platform/Storyboard.h"
#include "platform/linux/scenes/DroppedFolders.h"
#include "platform/linux/scenes/SceneConnections.h"

#include <QWidget>

#include <memory>
#include <utility>

namespace LinuxDesktop {

class ImageStore;
class RowWidget;

/// The scenes of resources/Main, each run by the program's class of its name; a button may name a class of its own in
/// the property "customClass". Main thread.
class WidgetStoryboard : public NS::Storyboard {
public:
    /// The first three must outlive the storyboard and what it makes. `responders` answer the actions that a scene's
    /// own controller does not; `refusal` says which folders may not be dropped on a list.
    WidgetStoryboard(const NS::ClassTable& classes, ImageStore& images, const ActionMap& responders,
                     PathRefusal refusal = {})
        : m_classes(classes), m_images(images), m_responders(responders), m_refusal(std::move(refusal))
    {}

    std::shared_ptr<NS::Controller> instantiateControllerWithIdentifier(std::string_view identifier) override;

private:
    std::unique_ptr<RowWidget> makeRow(std::string_view identifier);
    void wakeButtons(QWidget& root);
    void furnish(QWidget& root, NS::Controller& controller);

    const NS::ClassTable& m_classes;
    ImageStore& m_images;
    const ActionMap& m_responders;
    PathRefusal m_refusal;
};

} // namespace LinuxDesktop
