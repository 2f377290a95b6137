#include "RecordedDisk.h"

#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <set>
#include <tuple>

namespace DefaultsTests {

using LinuxDesktop::FileDescriptor;
using LinuxDesktop::parentFolder;

namespace {

/// What becomes of the bytes that were not flushed.
enum class Unflushed { Kept, Lost, Halved, Zeros };

} // namespace

/// As far as the record has been followed.
struct RecordedDisk::Disk {
    std::map<std::string, std::size_t> names;
    /// Those that no flush covers, in order.
    std::vector<Names> uncertain;
    std::map<std::size_t, File> files;

    static void apply(const Names& changes, std::map<std::string, std::size_t>& names)
    {
        for (const auto& [name, file] : changes) {
            if (file == noFile)
                names.erase(name);
            else
                names.insert_or_assign(name, file);
        }
    }

    void follow(const Event& event)
    {
        switch (event.kind) {
        case Event::Kind::Names:
            uncertain.push_back(event.names);
            break;
        case Event::Kind::Bytes:
            files[event.file].bytes += event.text;
            break;
        case Event::Kind::FlushFile:
            files[event.file].flushed = files[event.file].bytes.size();
            break;
        case Event::Kind::FlushFolder:
            std::erase_if(uncertain, [&](const Names& changes) {
                if (parentFolder(changes.front().first) != event.text)
                    return false;
                apply(changes, names);
                return true;
            });
            break;
        case Event::Kind::Damage:
            files[event.file] = {event.text, event.text.size()};
            break;
        case Event::Kind::Note:
            break;
        }
    }

    [[nodiscard]] Tree tree(std::uint64_t chosen, Unflushed unflushed) const
    {
        auto present = names;
        for (std::size_t i = 0; i < uncertain.size(); ++i)
            if ((chosen >> i & 1U) != 0)
                apply(uncertain[i], present);
        Tree tree;
        // In order, so a folder comes before what is in it; without it all that has gone.
        for (const auto& [name, file] : present) {
            const std::string parent = parentFolder(name);
            if (parent != "/" && !tree.contains(parent))
                continue;
            tree.emplace(name, file == folder ? std::nullopt : std::optional(bytes(file, unflushed)));
        }
        return tree;
    }

    [[nodiscard]] std::string bytes(std::size_t number, Unflushed unflushed) const
    {
        const auto found = files.find(number);
        if (found == files.end())
            return {};
        std::string bytes = found->second.bytes;
        const std::size_t flushed = found->second.flushed;
        if (unflushed == Unflushed::Lost)
            bytes.resize(flushed);
        else if (unflushed == Unflushed::Halved)
            bytes.resize(flushed + (bytes.size() - flushed) / 2);
        else if (unflushed == Unflushed::Zeros)
            std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(flushed), bytes.end(), '\0');
        return bytes;
    }
};

void RecordedDisk::forEachCut(const std::function<void(const DiskAfterCut&)>& visit) const
{
    // So that a long record without a flush does not take for ever. The older ones are lost then.
    constexpr std::size_t mostUncertain = 10;
    Disk disk;
    DiskAfterCut cut;
    cut.sure = [&disk](std::string_view path) -> std::optional<std::string> {
        const auto found = disk.names.find(std::string(path));
        return found == disk.names.end() ? std::nullopt : std::optional(disk.bytes(found->second, Unflushed::Kept));
    };
    std::set<std::tuple<Tree, int, int>> seen;
    for (const Event& event : m_events) {
        disk.follow(event);
        if (event.kind == Event::Kind::Note)
            cut.noted = cut.notedSinceDamage = event.number;
        if (event.kind == Event::Kind::Damage) {
            cut.isDamaged = true;
            cut.notedSinceDamage = -1;
        }
        const std::size_t count = disk.uncertain.size();
        const std::size_t older = count > mostUncertain ? count - mostUncertain : 0;
        for (std::uint64_t chosen = 0; chosen < std::uint64_t{1} << (count - older); ++chosen) {
            for (const auto unflushed : {Unflushed::Kept, Unflushed::Lost, Unflushed::Halved, Unflushed::Zeros}) {
                cut.tree = disk.tree(chosen << older, unflushed);
                if (seen.insert({cut.tree, cut.noted, cut.notedSinceDamage}).second)
                    visit(cut);
            }
        }
    }
}

void RecordedDisk::note(int number)
{
    const std::lock_guard lock(m_mutex);
    m_events.push_back({.kind = Event::Kind::Note, .names = {}, .text = {}, .number = number});
}

void RecordedDisk::damage(const std::string& path, std::string_view bytes)
{
    const std::lock_guard lock(m_mutex);
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    m_events.push_back(
        {.kind = Event::Kind::Damage, .names = {}, .file = named(inside(path)), .text = std::string(bytes)});
}

std::string RecordedDisk::inside(const std::string& path) const
{
    if (!path.starts_with(m_root + "/") && path != m_root)
        std::abort();
    return path == m_root ? "/" : path.substr(m_root.size());
}

std::size_t RecordedDisk::named(const std::string& path) const
{
    const auto found = m_names.find(path);
    return found == m_names.end() ? noFile : found->second;
}

void RecordedDisk::rename(const Names& names)
{
    Disk::apply(names, m_names);
    m_events.push_back({.kind = Event::Kind::Names, .names = names, .text = {}});
}

FileDescriptor RecordedDisk::open(const std::string& path, int flags, mode_t mode)
{
    const std::lock_guard lock(m_mutex);
    FileDescriptor opened = FileOperations::open(path, flags, mode);
    if (!opened)
        return opened;
    const std::string name = inside(path);
    if ((flags & O_DIRECTORY) != 0) {
        m_openFolders[opened.get()] = name;
    } else {
        if (named(name) == noFile)
            rename({{name, m_files++}});
        m_openFiles[opened.get()] = named(name);
    }
    return opened;
}

ssize_t RecordedDisk::write(int descriptor, const void* bytes, std::size_t count)
{
    const std::lock_guard lock(m_mutex);
    const ssize_t written = FileOperations::write(descriptor, bytes, count);
    if (written > 0)
        m_events.push_back({.kind = Event::Kind::Bytes,
                            .names = {},
                            .file = m_openFiles.at(descriptor),
                            .text = {static_cast<const char*>(bytes), static_cast<std::size_t>(written)}});
    return written;
}

void RecordedDisk::failFlush(int which)
{
    const std::lock_guard lock(m_mutex);
    m_flushesToFailure = which;
}

bool RecordedDisk::flushFails()
{
    errno = EIO;
    return m_flushesToFailure > 0 && --m_flushesToFailure == 0;
}

int RecordedDisk::syncFile(int descriptor)
{
    const std::lock_guard lock(m_mutex);
    if (flushFails())
        return -1;
    m_events.push_back({.kind = Event::Kind::FlushFile, .names = {}, .file = m_openFiles.at(descriptor), .text = {}});
    return FileOperations::syncFile(descriptor);
}

int RecordedDisk::syncFolder(int descriptor)
{
    const std::lock_guard lock(m_mutex);
    if (flushFails())
        return -1;
    m_events.push_back({.kind = Event::Kind::FlushFolder, .names = {}, .text = m_openFolders.at(descriptor)});
    return FileOperations::syncFolder(descriptor);
}

int RecordedDisk::rename(const std::string& from, const std::string& to)
{
    const std::lock_guard lock(m_mutex);
    const int result = FileOperations::rename(from, to);
    if (result == 0)
        rename({{inside(to), named(inside(from))}, {inside(from), noFile}});
    return result;
}

int RecordedDisk::link(const std::string& existing, const std::string& name)
{
    const std::lock_guard lock(m_mutex);
    const int result = FileOperations::link(existing, name);
    if (result == 0)
        rename({{inside(name), named(inside(existing))}});
    return result;
}

int RecordedDisk::unlink(const std::string& path)
{
    const std::lock_guard lock(m_mutex);
    const int result = FileOperations::unlink(path);
    if (result == 0)
        rename({{inside(path), noFile}});
    return result;
}

int RecordedDisk::makeFolder(const std::string& path, mode_t mode)
{
    const std::lock_guard lock(m_mutex);
    const int result = FileOperations::makeFolder(path, mode);
    if (result == 0)
        rename({{inside(path), folder}});
    return result;
}

} // namespace DefaultsTests
