#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// When a file manager loads its modules.
enum class Loading { AtStart, WithFirstWindow, WithMenu };

/// A file manager that the menu can be in, and its module of ours, the bridge.
struct FileManager {
    /// What people call it.
    std::string_view name;
    std::string_view program;
    /// Where its modules lie below a folder of libraries: a pattern of glob(7).
    std::string_view moduleFolder;
    std::string_view module;
    Loading loading;
    /// With which the program ends those of its processes that run; empty where it has no such option.
    std::string_view quitOption;
};

inline constexpr std::array<FileManager, 5> fileManagers{{
    {"Files", "nautilus", "nautilus/extensions-4", "liborvik-menu-nautilus.so", Loading::AtStart, "-q"},
    {"Nemo", "nemo", "nemo/extensions-3.0", "liborvik-menu-nemo.so", Loading::AtStart, "-q"},
    {"Caja", "caja", "caja/extensions-2.0", "liborvik-menu-caja.so", Loading::AtStart, "-q"},
    {"Thunar", "thunar", "thunarx-3", "liborvik-menu-thunar.so", Loading::WithFirstWindow, "-q"},
    {"Dolphin", "dolphin", "qt*/plugins/kf5/kfileitemaction", "orvik-menu-dolphin.so", Loading::WithMenu, ""},
}};

/// The package that brings the bridge.
[[nodiscard]] std::string packageFor(const FileManager& manager);

/// The program and its arguments that end it, so that it starts anew when it is next wanted. Empty where a person has
/// to close it.
[[nodiscard]] std::vector<std::string> quitCommand(const FileManager& manager);

} // namespace MenuExtension
