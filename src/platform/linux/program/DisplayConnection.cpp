#include "platform/linux/program/DisplayConnection.h"

#include <cstdio>
#include <cstdlib>

namespace LinuxDesktop {

namespace {

// The toolkit's handler is a plain function.
const std::string* lineWithoutDisplay = nullptr;
std::string heldBack;

/// Without a display the toolkit complains at length and then dumps core. With one, what it complained of on the way
/// there is said afterwards.
void whileConnecting(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", lineWithoutDisplay->c_str());
        std::_Exit(EXIT_FAILURE);
    }
    heldBack += qFormatLogMessage(type, context, message).toStdString() + '\n';
}

} // namespace

std::unique_ptr<QApplication> connectToDisplay(int& argc, char** argv, const std::string& noDisplay)
{
    lineWithoutDisplay = &noDisplay;
    const QtMessageHandler usual = qInstallMessageHandler(whileConnecting);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    std::fputs(heldBack.c_str(), stderr);
    heldBack.clear();
    return application;
}

} // namespace LinuxDesktop
