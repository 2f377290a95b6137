#include "ui/aboutVc.h"

#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "platform/Print.h"
#include "settings/ApplicationVersion.h"
#include "settings/Deployment.h"

#include <string_view>

namespace {

void openInBrowser(std::string_view address)
{
    const auto url = NS::URL::URLWithString(address);
    if (url && NS::platform().sharedWorkspace().openURL(*url))
        NS::print("default browser was successfully opened");
}

} // namespace

void aboutVc::connect(NS::Connections& connections)
{
    connections.outlet(lblAppversion);
    connections.action("btnfacebook:", [this](NS::Control& sender) { btnfacebook(sender); });
    connections.action("btntwitter:", [this](NS::Control& sender) { btntwitter(sender); });
    connections.action("btnweb:", [this](NS::Control& sender) { btnweb(sender); });
    connections.action("btnRateusClciked:", [this](NS::Control& sender) { btnRateusClciked(sender); });
}

void aboutVc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    lblAppversion->setStringValue(
        NS::stringWithFormat(NS::LocalizedString("aboutVc", "Version %1"), {applicationVersion()}));
}

void aboutVc::btnfacebook(NS::Control&)
{
    openInBrowser(Deployment::facebookAddress);
}

void aboutVc::btntwitter(NS::Control&)
{
    openInBrowser(Deployment::twitterAddress);
}

void aboutVc::btnweb(NS::Control&)
{
    openInBrowser(Deployment::webAddress);
}

void aboutVc::btnRateusClciked(NS::Control&)
{
    const auto url = NS::URL::URLWithString(Deployment::storeAddress);
    if (!url)
        NS::fatalError("the application's store address is not an address");
    NS::platform().sharedWorkspace().openURL(*url);
}
