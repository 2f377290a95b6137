#pragma once

#include "platform/linux/mailing/Attaching.h"
#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/system/TemporaryFolders.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace LinuxDesktop {

/// Items on their way to becoming files that a mail program takes. Either part of the work takes as long as it takes,
/// and ends soon when `progress` says so. One thread at a time, but for `progress`.
class Attachments {
public:
    /// `items` are absolute paths, a folder's without a slash at the end.
    explicit Attachments(std::vector<std::string> items) : m_items(std::move(items)) {}

    /// Opens a file for each item: the item itself, the archive of a folder, or a copy where the name is no text.
    void make();
    /// Copies those whose names would not reach a mail program through a command.
    void makeMailable();

    /// Why make() or makeMailable() did not do it; there is nothing to send then, and nothing is left behind.
    [[nodiscard]] const std::optional<AttachingFailure>& failure() const { return m_failure; }
    [[nodiscard]] const std::vector<std::string>& items() const { return m_items; }
    /// The files, and the same open for reading.
    [[nodiscard]] const std::vector<std::string>& paths() const { return m_paths; }
    [[nodiscard]] const std::vector<FileDescriptor>& files() const { return m_files; }
    /// Whether some of the files go with this object.
    [[nodiscard]] bool areTemporary() const { return m_temporary; }

    AttachingProgress progress;

private:
    std::optional<std::string> fileFor(const std::string& item);
    std::optional<std::string> zip(const std::string& folder);
    std::optional<std::string> copy(const std::string& path);
    std::optional<std::string> temporaryFile(const std::string& name);
    bool open(const std::string& path);
    std::nullopt_t fail(AttachingFailure failure);

    std::vector<std::string> m_items;
    std::vector<std::string> m_paths;
    std::vector<FileDescriptor> m_files;
    std::optional<TemporaryFolders> m_folders{std::in_place};
    bool m_temporary = false;
    std::optional<AttachingFailure> m_failure;
};

} // namespace LinuxDesktop
