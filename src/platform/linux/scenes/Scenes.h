#pragma once

#include <QWidget>

#include <memory>
#include <string_view>

namespace LinuxDesktop {

/// The widgets of a scene of the storyboard "Main"; null where there is no such scene.
[[nodiscard]] std::unique_ptr<QWidget> makeScene(std::string_view identifier);

} // namespace LinuxDesktop
