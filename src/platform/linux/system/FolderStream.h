#pragma once

#include <dirent.h>
#include <memory>
#include <string>

namespace LinuxDesktop {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// An open folder; nothing where it could not be opened.
using FolderStream = std::unique_ptr<DIR, CloseFolder>;

inline FolderStream openFolder(const std::string& folder)
{
    return FolderStream(::opendir(folder.c_str()));
}

} // namespace LinuxDesktop
