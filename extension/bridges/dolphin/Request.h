#pragma once

#include "extension/bridges/dolphin/Clicked.h"

#include <QDBusConnection>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <string>

namespace DolphinBridge {

/// Does an action of the menu and returns at once: the companion does it, apart from what only this process can. What
/// opens may come to the front in the place of `window`.
void request(const std::string& action, const std::shared_ptr<const Clicked>& clicked, const QDBusConnection& bus,
             const QPointer<QWidget>& window);

} // namespace DolphinBridge
