#include "extensions/LackingActions.h"

#include "platform/LocalizedString.h"
#include "settings/MenuCatalogue.h"

#include <QCoreApplication>
#include <QStringList>

#include <unistd.h>

namespace ExtensionsTool {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LackingActions)
};

} // namespace

std::vector<LackingAction> lackingActions(const std::string& programs)
{
    std::vector<LackingAction> lacking;
    for (const CatalogueRow& row : menuCatalogue) {
        if (::access((programs + '/').append(row.identifier).c_str(), X_OK) != 0)
            continue;
        if (auto needs = MenuExtension::missingNeeds(programs, row.identifier); !needs.empty())
            lacking.push_back(
                {QString::fromStdString(NS::LocalizedString("MenuCatalogue", row.title)), std::move(needs)});
    }
    return lacking;
}

QString inWords(const LackingAction& action)
{
    QStringList packages;
    for (const MenuExtension::ActionNeed& need : action.needs)
        packages += QString::fromStdString(need.package);
    return (packages.size() == 1 ? Texts::tr("Needs the package %1, which is not installed.")
                                 : Texts::tr("Needs the packages %1, which are not installed."))
        .arg(packages.join(QStringLiteral(", ")));
}

} // namespace ExtensionsTool
