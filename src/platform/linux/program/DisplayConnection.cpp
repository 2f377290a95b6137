#include "platform/linux/program/DisplayConnection.h"

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

} // namespace

std::unique_ptr<QApplication> connectToDisplay(int& argc, char** argv, const std::function<int()>& withoutDisplay)
{
    statusWithoutDisplay = &withoutDisplay;
    const QtMessageHandler usual = qInstallMessageHandler(whileConnecting);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    std::fputs(heldBack.c_str(), stderr);
    heldBack.clear();
    return application;
}

} // namespace LinuxDesktop
