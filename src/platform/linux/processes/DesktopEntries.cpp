#include "platform/linux/processes/DesktopEntries.h"

#include "platform/linux/processes/DesktopEntry.h"
#include "platform/linux/system/FileDescriptor.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cstddef>
#include <fcntl.h>
#include <utility>

namespace LinuxDesktop {

namespace {

/// The keys that matter stand at the start; no entry that was made in earnest is as long.
constexpr std::size_t mostRead = std::size_t{1} << 20U;

/// As the base directory standard says: $XDG_DATA_HOME and $XDG_DATA_DIRS with their defaults.
std::vector<std::string> entryFolders()
{
    std::vector<std::string> folders;
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation))
        folders.push_back(QFile::encodeName(folder).toStdString());
    return folders;
}

std::vector<std::string> currentDesktops()
{
    std::vector<std::string> names;
    for (const QByteArray& name : qgetenv("XDG_CURRENT_DESKTOP").split(':'))
        names.push_back(name.toStdString());
    return names;
}

/// Bus names are ASCII, so that is what can match.
std::string lowerCase(std::string text)
{
    for (char& character : text)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return text;
}

/// The file's start, without waiting for the other end of a pipe; nothing when it is no file or cannot be read.
std::optional<std::string> startOf(const std::string& path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string text(std::min(mostRead, static_cast<std::size_t>(status.st_size)), '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        const ssize_t count = ::read(file.get(), text.data() + length, text.size() - length);
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    text.resize(length);
    return text;
}

} // namespace

DesktopEntries::DesktopEntries() : m_folders(entryFolders()), m_currentDesktops(currentDesktops()) {}

std::vector<NS::ActivationPolicy> DesktopEntries::policiesOf(std::span<const std::string> identifiers)
{
    const std::lock_guard guard(m_mutex);
    if (!current())
        listAgain();
    std::vector<NS::ActivationPolicy> policies;
    policies.reserve(identifiers.size());
    for (const std::string& identifier : identifiers) {
        const auto program = m_programs.find(lowerCase(identifier));
        policies.push_back(program == m_programs.end() ? NS::ActivationPolicy::Accessory : policyOf(program->second));
    }
    return policies;
}

bool DesktopEntries::current()
{
    return m_changes && !m_changes->any() &&
           std::ranges::all_of(m_places, [](const Place& place) { return FileStamp::of(place.path) == place.stamp; });
}

void DesktopEntries::listAgain()
{
    m_changes.emplace();
    m_places.clear();
    m_programs.clear();
    for (const std::string& folder : m_folders) {
        // Its stamp is taken first, so a folder that comes while it is listed counts at the next question.
        note(folder);
        EntryFolder listed = EntryFolder::list(folder, *m_changes);
        std::ranges::for_each(listed.folderLinks, [this](const std::string& link) { note(link); });
        for (EntryFolder::Entry& entry : listed.entries) {
            auto& entries = m_programs[lowerCase(entry.identifier)].entries;
            entries.push_back(std::move(entry));
        }
    }
}

NS::ActivationPolicy DesktopEntries::policyOf(Program& program)
{
    for (auto entry = program.entries.begin(); !program.policy && entry != program.entries.end(); ++entry) {
        if (entry->isLink)
            note(entry->path);
        if (const auto text = startOf(entry->path))
            program.policy = policyOfDesktopEntry(*text, m_currentDesktops);
    }
    if (!program.policy)
        program.policy = NS::ActivationPolicy::Accessory;
    return *program.policy;
}

void DesktopEntries::note(std::string path)
{
    auto stamp = FileStamp::of(path);
    m_places.push_back({std::move(path), stamp});
}

} // namespace LinuxDesktop
