#include "showcase/PromotedApplications.h"

#include "platform/FatalError.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "showcase/InstalledApplications.h"
#include "showcase/PromotionOrders.h"
#include "showcase/ShowcaseCatalogue.h"

#include <optional>

namespace {

NS::Image imageOf(const ShowcaseApplication& application)
{
    auto image = NS::platform().imageNamed(application.image);
    if (!image)
        NS::fatalError("the image \"" + std::string(application.image) + "\" is missing");
    return *std::move(image);
}

ShowcaseEntry entryOf(const ShowcaseApplication& application)
{
    return {
        {std::string(ShowcaseKey::Title), std::string(application.title)},
        {std::string(ShowcaseKey::description), NS::LocalizedString("ShowcaseCatalogue", application.description)},
        {std::string(ShowcaseKey::icon), imageOf(application)},
        {std::string(ShowcaseKey::apppath), std::string(application.storeAddress)},
        {std::string(ShowcaseKey::category), NS::LocalizedString("ShowcaseCatalogue", application.category)},
    };
}

} // namespace

std::vector<int> drawPromotionOrder()
{
    const auto& order = promotionOrders.at(NS::platform().arc4random_uniform(promotionOrders.size()));
    return {order.begin(), order.end()};
}

std::vector<ShowcaseEntry> promotedApplications(const std::vector<int>& numbers)
{
    std::vector<ShowcaseEntry> entries;
    for (const int number : numbers) {
        if (number < 1 || number > std::ssize(showcaseCatalogue) || isApplicationInstalled(number))
            continue;
        entries.push_back(entryOf(showcaseCatalogue[static_cast<std::size_t>(number - 1)]));
    }
    return entries;
}
