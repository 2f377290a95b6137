#include "platform/linux/DesktopWorkspace.h"

#include "platform/linux/opening/OpenAddress.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/text/FileNameText.h"

#include <QCoreApplication>

#include <string>

namespace LinuxDesktop {

namespace {

/// Where extensions are switched on and off: a pane of the system's on the panel's first desktop, a program of ours
/// here.
constexpr std::string_view extensionsPane = "/System/Library/PreferencePanes/Extensions.prefPane";
constexpr const char* extensionsProgram = "/orvik-menu-extensions";

} // namespace

DesktopWorkspace::DesktopWorkspace(SessionBus& bus) : m_bus(bus), m_running(bus) {}

bool DesktopWorkspace::openURL(const NS::URL& url)
{
    if (url.path() == extensionsPane)
        return startProgram(QCoreApplication::applicationDirPath().toStdString() + extensionsProgram);
    return openAddress(m_bus, url.absoluteString());
}

NS::Image DesktopWorkspace::iconForFile(std::string_view path)
{
    const FileKind kind = m_kinds.kindOf(std::string(path));
    if (kind == FileKind::Missing)
        return ImageStore::missingItem();
    return ImageStore::themeImage(m_icons.iconNames(
        kind == FileKind::Folder ? FileEntry::Kind::Folder : FileEntry::Kind::File, fileNameText(path)));
}

std::vector<NS::RunningApplication> DesktopWorkspace::runningApplications()
{
    return m_running.list();
}

} // namespace LinuxDesktop
