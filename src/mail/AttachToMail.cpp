#include "mail/AttachToMail.h"

#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "settings/Reading.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"

#include <optional>
#include <string>

namespace {

/// In seconds. A request of exactly this age is stale.
constexpr double freshness = 20.0;

/// The path of a request that is well-formed and fresh.
std::optional<std::string> pathOfFreshRequest(NS::UserDefaults& suite)
{
    auto path = read(Settings::mailAttachPath, suite);
    std::optional<NS::Date> clicked;
    // Another request may take this one's place between the two.
    for (std::optional<std::string> before; path && path != before;) {
        before = path;
        clicked = read(Settings::AttachClickedDate, suite);
        path = read(Settings::mailAttachPath, suite);
    }
    if (!path || !clicked)
        return std::nullopt;
    const double age = NS::platform().now().timeIntervalSinceDate(*clicked);
    // An age that is not a number compares as stale.
    if (!(age < freshness))
        return std::nullopt;
    return path;
}

/// Takes the request out of the suite before anybody is asked, so that it can be acted on only once.
std::optional<std::string> consumeRequest()
{
    const auto suite = openSharedSuite();
    if (!suite)
        return std::nullopt;
    auto path = pathOfFreshRequest(*suite);
    suite->removeObjectForKey(Settings::mailAttachPath.key);
    suite->removeObjectForKey(Settings::AttachClickedDate.key);
    return path;
}

} // namespace

AttachToMailOutcome attachToMail()
{
    const auto path = consumeRequest();
    if (!path)
        return AttachToMailOutcome::NoRequest;

    const auto panel = NS::platform().makeOpenPanel(NS::ChosenPaths::Any);
    panel->setMessage(NS::LocalizedString("AttachToMail",
                                          "Please select the file that you want to send via email to allow sending"));
    panel->setCanChooseDirectories(true);
    panel->setAllowsMultipleSelection(false);
    panel->setShowsHiddenFiles(true);
    panel->setDirectoryURL(NS::URL::fileURLWithPath(*path));
    panel->setPrompt(NS::LocalizedString("AttachToMail", "Attach to Mail"));

    const int response = panel->runModal();
    if (response == NS::ModalResponseCancel)
        return AttachToMailOutcome::Abandoned;
    if (response != NS::ModalResponseOK)
        return AttachToMailOutcome::NoRequest;
    const auto chosen = panel->URL();
    if (!chosen)
        return AttachToMailOutcome::Abandoned;

    NS::SharingService* service = NS::platform().sharingServiceNamed(NS::SharingServiceNameComposeEmail);
    if (!service)
        NS::fatalError("there is no service to compose an e-mail with");
    service->performWithItems({*chosen});
    return AttachToMailOutcome::HandedOver;
}
