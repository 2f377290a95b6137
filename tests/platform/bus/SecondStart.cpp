#include "platform/linux/bus/ActivationToken.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/SessionBus.h"

#include <QCoreApplication>

#include <cstdio>

// A second start of a program under the identifier of the first argument. It says what it finds, line by line; when
// it owns the name it stays until standard input ends.
int main(int argc, char** argv)
{
    using namespace LinuxDesktop;

    const QVariantMap platformData = ActivationToken::platformDataFromEnvironment();
    const QCoreApplication application(argc, argv);
    SessionBus bus("no bus");
    ApplicationName name(bus, argv[1]);
    switch (name.claim()) {
    case ApplicationName::Claim::Owned:
        std::puts("owned");
        std::fflush(stdout);
        while (std::getchar() != EOF) {
        }
        break;
    case ApplicationName::Claim::OwnedByAnother:
        std::puts(name.activateOther(platformData) ? "activated" : "unanswered");
        break;
    case ApplicationName::Claim::NoBus:
        std::puts("no bus");
        break;
    }
    return 0;
}
