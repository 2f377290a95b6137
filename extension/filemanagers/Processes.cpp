#include "extension/filemanagers/Processes.h"

#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/system/FolderStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;

namespace {

bool isNumber(std::string_view text)
{
    return std::ranges::all_of(text, [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// The whole of a file; nothing, and `errno`, where it cannot be read.
std::optional<std::string> contentsOf(const std::string& path)
{
    // A pipe in its place would keep whoever opens it.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file)
        return std::nullopt;
    std::string contents;
    std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
        if (count == 0)
            return contents;
        if (count > 0)
            contents.append(buffer.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return std::nullopt;
    }
}

std::string nameIn(const std::string& folder)
{
    std::string name = contentsOf(folder + "/comm").value_or("");
    if (name.ends_with('\n'))
        name.pop_back();
    return name;
}

Process processIn(const std::string& folder)
{
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink((folder + "/exe").c_str(), buffer.data(), buffer.size());
    if (length < 0)
        // It may call itself anything, but there is no better answer.
        return {folder, {}, nameIn(folder)};
    std::string program(buffer.data(), static_cast<std::size_t>(length));
    if (program.ends_with(deletedMark))
        program.resize(program.size() - deletedMark.size());
    return {folder, std::move(program), {}};
}

} // namespace

std::vector<Process> processesOfUser(const Places& places)
{
    std::vector<Process> processes;
    const auto folder = LinuxDesktop::openFolder(places.processes);
    while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
        if (!isNumber(entry->d_name))
            continue;
        const std::string path = places.processes + '/' + entry->d_name;
        struct stat status = {};
        if (::stat(path.c_str(), &status) == 0 && status.st_uid == places.user)
            processes.push_back(processIn(path));
    }
    return processes;
}

std::optional<std::vector<std::string>> loadedFiles(const Process& process)
{
    const auto maps = contentsOf(process.folder + "/maps");
    std::vector<std::string> files;
    if (!maps)
        return errno == ENOENT || errno == ESRCH ? std::optional(files) : std::nullopt;
    std::string_view rest = *maps;
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find('\n'), rest.size());
        const std::string_view line = rest.substr(0, length);
        rest.remove_prefix(std::min(length + 1, rest.size()));
        // Nothing before the path has a slash, and the system writes a line's end in a path in another way. A file
        // has several lines, one after another.
        const std::size_t path = line.find('/');
        if (path != std::string_view::npos && (files.empty() || files.back() != line.substr(path)))
            files.emplace_back(line.substr(path));
    }
    return files;
}

} // namespace MenuExtension
