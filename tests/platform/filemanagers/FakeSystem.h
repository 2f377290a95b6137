#pragma once

#include "../chooser/TemporaryFolder.h"
#include "extension/filemanagers/BridgeStatus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

/// Programs, modules and processes in a folder of a test's own.
class FakeSystem {
public:
    [[nodiscard]] MenuExtension::Places places() const
    {
        return {.programFolders = {path("usr/local/bin"), path("usr/bin")},
                .system = path("usr"),
                .processes = path("proc")};
    }

    [[nodiscard]] std::string path(const std::string& name) const { return m_root.path(name); }

    /// Makes the folders above it too.
    void write(const std::string& name, const std::string& contents = "x") const
    {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << contents;
    }

    void installProgram(const std::string& name) const
    {
        write(name);
        std::filesystem::permissions(path(name), std::filesystem::perms{0755});
    }

    void link(const std::string& name, const std::string& target) const
    {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::filesystem::create_symlink(target, path(name));
    }

    /// A process of a program, at its full path, with some of its memory in the system's own words.
    void run(int process, const std::string& program, const std::string& maps) const
    {
        const std::string folder = "proc/" + std::to_string(process);
        link(folder + "/exe", program);
        write(folder + "/maps", maps);
    }

    /// A line of that, with the path of what is loaded there.
    [[nodiscard]] static std::string loaded(const std::string& path)
    {
        return "7f3a0c400000-7f3a0c428000 r-xp 00028000 08:01 1311768         " + path + "\n";
    }

    [[nodiscard]] MenuExtension::BridgeStatus status(std::string_view program) const
    {
        const auto statuses = MenuExtension::bridgeStatuses(places());
        const auto* manager =
            std::ranges::find(MenuExtension::fileManagers, program, &MenuExtension::FileManager::program);
        return statuses.at(static_cast<std::size_t>(manager - MenuExtension::fileManagers.begin()));
    }

private:
    TemporaryFolder m_root;
};
