#pragma once

#include "Tags.h"
#include "Trouble.h"
#include "extension/actions/photos/ExifTool.h"
#include "extension/actions/placing/OpenedFile.h"

#include "platform/linux/system/TemporaryFolders.h"

#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace MenuExtension::Exif {

/// What a file says.
struct Reading {
    Tags tags = {};
    Trouble trouble = {};
    /// Than the picture that the tags are of; only where few are read.
    bool holdsMore = false;
};

/// Reads what files say by an ExifTool of its own, which sees none of their names. One thread at a time.
class TagReader {
public:
    explicit TagReader(Limits limits = {}) : m_exifTool(limits) {}

    /// An open file. Its own name's end says of what kind it is.
    struct Source {
        int file;
        std::string name;
    };

    /// Reads open files; one that ExifTool does not come back from does no harm to the others. Where there are keys,
    /// only their tags, which takes half the time, and what says of what kind the file is.
    [[nodiscard]] std::vector<Reading> read(std::span<const Source> sources, const std::stop_token& stop,
                                            std::span<const std::string> keys = {});
    [[nodiscard]] std::vector<Reading> read(std::span<const OpenedFile> photos, const std::stop_token& stop,
                                            std::span<const std::string> keys = {});

    /// A copy of an open file, to be made under a name that is not there. Its end says of what kind the file is.
    struct Copy {
        int from;
        std::string name;
    };
    /// Makes the copies in a folder with the changes that the arguments say; one that ExifTool does not come back
    /// from does no harm to the others.
    [[nodiscard]] std::vector<Trouble> write(std::span<const Copy> copies, const std::string& folder,
                                             const std::vector<std::string>& changes, const std::stop_token& stop);

private:
    /// A name that ExifTool can be told, for as long as this is there.
    class Link {
    public:
        Link(std::string path, int file);
        ~Link();
        Link(Link&& other) noexcept : m_path(std::exchange(other.m_path, {})) {}
        Link& operator=(Link&&) = delete;
        [[nodiscard]] const std::string& path() const { return m_path; }

    private:
        std::string m_path;
    };
    [[nodiscard]] const std::string& folderOfLinks();

    ExifTool m_exifTool;
    LinuxDesktop::TemporaryFolders m_folders;
    std::string m_folder;
    unsigned m_links = 0;
};

} // namespace MenuExtension::Exif
