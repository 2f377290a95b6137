#pragma once

#include "platform/FatalError.h"
#include "platform/Storyboard.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

/// Identifiers of the controllers that the registry keeps.
namespace ControllerIdentifier {

inline constexpr std::string_view mainStartWindow = "mainStartWindow";
inline constexpr std::string_view firstRunvc = "firstRunvc";
inline constexpr std::string_view tabviewcontroller = "tabviewcontroller";
inline constexpr std::string_view UtilityKitWindow = "UtilityKitWindow";
inline constexpr std::string_view utilityKitvc = "utilityKitvc";

} // namespace ControllerIdentifier

/// The controllers that the process has one of: each is made from the storyboard "Main" when it is first asked
/// for and kept from then on. It knows no screen, so that screens can ask it for the start window. Main thread.
class ControllerRegistry {
public:
    /// The controller of that identifier. A scene that is missing, or run by another class than `T`, is fatal.
    template<class T>
    [[nodiscard]] std::shared_ptr<T> controller(std::string_view identifier)
    {
        auto typed = std::dynamic_pointer_cast<T>(sharedController(identifier));
        if (!typed)
            NS::fatalError("the scene \"" + std::string(identifier) + "\" is of the wrong class");
        return typed;
    }

private:
    NS::Storyboard& storyboard();
    std::shared_ptr<NS::Controller> sharedController(std::string_view identifier);

    std::shared_ptr<NS::Storyboard> m_storyboard;
    std::map<std::string, std::shared_ptr<NS::Controller>, std::less<>> m_controllers;
};
