#include "platform/linux/program/DisplayConnection.h"

#include "platform/linux/system/OwnEnvironment.h"

#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace LinuxDesktop {

namespace {

// The toolkit's handler is a plain function.
const std::function<int()>* statusWithoutDisplay = nullptr;
std::string heldBack;

/// Without a display the toolkit complains at length and then dumps core. With one, what it complained of on the way
/// there is said afterwards.
void whileConnecting(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg)
        std::_Exit((*statusWithoutDisplay)());
    heldBack += qFormatLogMessage(type, context, message).toStdString() + '\n';
}

/// On Wayland the toolkit loads the graphics driver for the first window, which doubles the memory where that
/// compiles programs. Windows like these are drawn without.
void keepToolkitFromLoadingGraphicsDrivers()
{
    OwnEnvironment::set("QT_WAYLAND_DISABLE_HW_INTEGRATION", "1");
    OwnEnvironment::set("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
}

} // namespace

std::unique_ptr<QApplication> connectToDisplay(int& argc, char** argv, const std::function<int()>& withoutDisplay)
{
    statusWithoutDisplay = &withoutDisplay;
    keepToolkitFromLoadingGraphicsDrivers();
    const QtMessageHandler usual = qInstallMessageHandler(whileConnecting);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    // It would say that it has found no such driver.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
    std::fputs(heldBack.c_str(), stderr);
    heldBack.clear();
    return application;
}

} // namespace LinuxDesktop
