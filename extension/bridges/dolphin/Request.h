#pragma once

#include "extension/bridges/dolphin/Clicked.h"

#include <QDBusConnection>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <string>

namespace DolphinBridge {

/// What an item of the menu does.
struct Choice {
    std::string action;
    /// The folder to move or copy to; empty where the action does not need one or asks for it.
    std::string target;
};

/// Does what was chosen and returns at once: the companion does it, apart from what only this process can. What
/// opens may come to the front in the place of `window`.
void request(const Choice& choice, const std::shared_ptr<const Clicked>& clicked, const QDBusConnection& bus,
             const QPointer<QWidget>& window);

} // namespace DolphinBridge
