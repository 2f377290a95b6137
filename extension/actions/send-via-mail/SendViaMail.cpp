#include "extension/actions/support/Action.h"
#include "extension/actions/support/Panel.h"
#include "extension/bus/SessionBus.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/Store.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Settings.h"

#include <chrono>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

namespace {

NS::Date now()
{
    return {std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()};
}

bool leaveRequest(const std::string& path)
{
    LinuxDesktop::Store store;
    const auto suite = store.open(Deployment::suiteName);
    if (!suite)
        return false;
    suite->setObjects(
        {{std::string(Settings::mailAttachPath.key), path}, {std::string(Settings::AttachClickedDate.key), now()}});
    return suite->synchronize();
}

} // namespace

Outcome perform(const Request& request)
{
    const std::string& path = request.paths.front();
    const std::string shown = Words::name(path);
    if (LinuxDesktop::PropertyList::unstorableReason(NS::Value(path)))
        return Outcome::failed(stringWithFormat(
            LocalizedString("SendViaMail",
                            "%1 cannot be sent: its name or that of a folder above it has characters that are "
                            "no text. Rename it and try again."),
            {shown}));
    if (!leaveRequest(path))
        return Outcome::failed(stringWithFormat(
            LocalizedString("SendViaMail",
                            "%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?"),
            {shown}));
    const Bus bus = openSessionBus();
    if (bus)
        post(*bus, NotificationName::AttachFileToMail);
    return bus && isOnBus(*bus, std::string(Deployment::applicationIdentifier).c_str()) ? Outcome::done()
                                                                                        : startPanel();
}

} // namespace MenuExtension
