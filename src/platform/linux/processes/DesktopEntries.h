#pragma once

#include "platform/Application.h"
#include "platform/linux/processes/ChangedFolders.h"
#include "platform/linux/processes/EntryFolder.h"
#include "platform/linux/system/FileStamp.h"

#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace LinuxDesktop {

/// What the desktop entries of the user and of the system say about programs. The folders are listed once and an
/// entry is read when it is asked for; all of it is forgotten when something changed there, which is looked at with
/// each question, so it costs nothing in between. Any thread.
class DesktopEntries {
public:
    /// For the data folders and the desktop that the environment names now.
    DesktopEntries();

    /// How the programs of the identifiers show, in their order; without regard to the identifiers' case. The first
    /// folder counts that has a readable entry of the identifier; a file that is none is passed over. Without one a
    /// program is an accessory.
    [[nodiscard]] std::vector<NS::ActivationPolicy> policiesOf(std::span<const std::string> identifiers);

private:
    struct Program {
        /// The ones that count more come first.
        std::vector<EntryFolder::Entry> entries;
        std::optional<NS::ActivationPolicy> policy;
    };
    /// What no watch tells of: a data folder, which may appear or be another one, and what links lead to.
    struct Place {
        std::string path;
        std::optional<FileStamp> stamp;
    };

    [[nodiscard]] bool current();
    void listAgain();
    [[nodiscard]] NS::ActivationPolicy policyOf(Program& program);
    /// Looks at the place with each question from now on.
    void note(std::string path);

    const std::vector<std::string> m_folders;
    const std::vector<std::string> m_currentDesktops;

    std::mutex m_mutex;
    std::optional<ChangedFolders> m_changes;
    std::vector<Place> m_places;
    std::unordered_map<std::string, Program> m_programs;
};

} // namespace LinuxDesktop
