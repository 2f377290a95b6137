#include "extension/actions/duplicates/ItemTexts.h"

#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <QDateTime>
#include <QLocale>

namespace MenuExtension::Duplicates {

QString nameText(const Item& item)
{
    return LinuxDesktop::fileNameText(std::string_view(item.path).substr(item.path.rfind('/') + 1));
}

QString folderText(const Item& item)
{
    return LinuxDesktop::fileNameText(LinuxDesktop::parentFolder(item.path));
}

QString dateText(const Item& item)
{
    constexpr std::int64_t millisecond = 1'000'000;
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(item.state.modified / millisecond),
                              QLocale::ShortFormat);
}

} // namespace MenuExtension::Duplicates
