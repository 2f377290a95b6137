#include "extension/actions/support/Action.h"
#include "extension/actions/support/FileManager.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <cerrno>
#include <fcntl.h>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

namespace {

constexpr mode_t readableByAsManyAsAllowed = 0666;
/// A folder with so many of them has a reason.
constexpr int namesTried = 100'000;

std::string nameOf(int number)
{
    const std::string name = LocalizedString("CreateNewTextFile", "New Text File");
    return (number == 1 ? name : name + ' ' + std::to_string(number)) + ".txt";
}

/// Gives the new file's name; nothing, with errno.
std::string createIn(const LinuxDesktop::FileDescriptor& folder)
{
    for (int number = 1; number <= namesTried; ++number) {
        std::string name = nameOf(number);
        const LinuxDesktop::FileDescriptor file(
            ::openat(folder.get(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, readableByAsManyAsAllowed));
        if (file)
            return name;
        if (errno != EEXIST)
            break;
    }
    return {};
}

} // namespace

Outcome perform(const Request& request)
{
    const std::string& folder = request.paths.front();
    const auto opened = openItem(request, folder, O_PATH | O_DIRECTORY);
    const std::string name = opened ? createIn(opened) : std::string();
    if (name.empty())
        return Outcome::failed(
            stringWithFormat(LocalizedString("CreateNewTextFile", "No file can be made in %1: %2."),
                             {Words::name(folder), Words::reason(errno)}));
    // The file is there, whether somebody shows it or not.
    static_cast<void>(FileManager::showItem((folder == "/" ? folder : folder + '/') + name, request.caller));
    return Outcome::done();
}

} // namespace MenuExtension
