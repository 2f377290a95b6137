#pragma once

#include "ExifTool.h"
#include "Tags.h"
#include "Trouble.h"
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

    /// Writes a copy of the open file `from` to `to`, which does not exist, with the changes that the arguments say.
    [[nodiscard]] Trouble write(int from, const std::string& name, const std::string& to,
                                std::vector<std::string> arguments, const std::stop_token& stop);

private:
    /// A name that ExifTool can be told, for as long as this is there.
    class Link {
    public:
        Link(const std::string& folder, unsigned number, int file, const std::string& name);
        ~Link();
        Link(Link&& other) noexcept : m_path(std::exchange(other.m_path, {})) {}
        Link& operator=(Link&&) = delete;
        [[nodiscard]] const std::string& path() const { return m_path; }

    private:
        std::string m_path;
    };
    [[nodiscard]] Link link(int file, const std::string& name);

    ExifTool m_exifTool;
    LinuxDesktop::TemporaryFolders m_folders;
    std::string m_folder;
    unsigned m_links = 0;
};

} // namespace MenuExtension::Exif
