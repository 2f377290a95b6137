#include "menu/IconTable.h"

#include "platform/FatalError.h"
#include "platform/Platform.h"
#include "settings/MenuCatalogue.h"

IconTable::IconTable()
{
    for (const CatalogueRow& action : menuCatalogue) {
        add(action.title, action.image);
        if (action.title == "Hide / Unhide item") {
            add("Hide item", action.image);
            add("Unhide item", action.image);
        }
    }
}

void IconTable::add(std::string_view title, std::string_view imageName)
{
    auto image = NS::platform().imageNamed(imageName);
    if (!image)
        NS::fatalError("the image \"" + std::string(imageName) + "\" is missing");
    m_images.emplace(title, *std::move(image));
}

std::optional<NS::Image> IconTable::imageForTitle(std::string_view title) const
{
    const auto image = m_images.find(std::string(title));
    if (image == m_images.end())
        return std::nullopt;
    return image->second;
}

const IconTable& iconTable()
{
    static const IconTable table;
    return table;
}
