#pragma once

#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/find-duplicate-files/Choices.h"
#include "platform/linux/system/FileDescriptor.h"

#include <functional>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

namespace MenuExtension {

/// Finds files that hold the same bytes: by their sizes, then the ends, then the whole. One file under several names
/// or paths is one.
class DuplicateFileFinder : public Duplicates::Finder {
public:
    /// Opens one of the paths that were asked for, or gives nothing, with errno. From the thread that finds.
    using OpenItem = std::function<LinuxDesktop::FileDescriptor(const std::string& path, int flags)>;

    /// Looks at files, and in folders at any depth.
    DuplicateFileFinder(std::vector<std::string> paths, OpenItem openItem, Choices choices = {});

    /// For the next search. Any thread.
    void setChoices(Choices choices);
    void find(Duplicates::Findings& findings, std::stop_token stop) override;

private:
    const std::vector<std::string> m_paths;
    const OpenItem m_openItem;
    std::mutex m_mutex;
    Choices m_choices;
};

} // namespace MenuExtension
