#include "platform/linux/chooser/ChooserMemory.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/chooser/PercentText.h"
#include "platform/linux/chooser/SmallFile.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <cstdlib>
#include <sstream>

namespace LinuxDesktop {

namespace {

constexpr std::size_t longestFile = std::size_t{16} << 10U;
constexpr int largestExtent = 32'767;

std::string memoryFolder()
{
    const char* state = std::getenv("XDG_STATE_HOME");
    const bool isSet = state && *state == '/';
    return pathInFolder(isSet ? state : pathInFolder(homeFolder(), ".local/state"), "orvik-menu");
}

std::string memoryFile()
{
    return pathInFolder(memoryFolder(), "file-chooser");
}

} // namespace

ChooserMemory ChooserMemory::recall()
{
    ChooserMemory memory;
    std::istringstream lines(readSmallFile(memoryFile(), longestFile).value_or(""));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string key;
        words >> key;
        if (key == "folder") {
            std::string text;
            words >> text;
            memory.folder = pathFromPercentEncoded(text).value_or("");
        } else if (key == "size") {
            int width = 0;
            int height = 0;
            const auto isExtent = [](int extent) { return extent > 0 && extent <= largestExtent; };
            if (words >> width >> height && isExtent(width) && isExtent(height))
                memory.size = QSize(width, height);
        }
    }
    return memory;
}

void ChooserMemory::keep() const
{
    if (!QDir().mkpath(QFile::decodeName(memoryFolder().c_str())))
        return;
    QSaveFile file(QFile::decodeName(memoryFile().c_str()));
    if (!file.open(QIODevice::WriteOnly))
        return;
    // Where somebody's files are is nobody else's to know.
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    std::ostringstream text;
    if (!folder.empty())
        text << "folder " << percentEncoded(folder) << '\n';
    if (size.isValid())
        text << "size " << size.width() << ' ' << size.height() << '\n';
    file.write(text.str().c_str());
    file.commit();
}

} // namespace LinuxDesktop
