#include "extension/actions/duplicates/ItemTexts.h"

#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <QCoreApplication>
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

QString sizeText(std::int64_t bytes)
{
    // The locale knows no singular of it.
    if (bytes == 1)
        return QCoreApplication::translate("ItemTexts", "1 byte");
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString dateText(const Item& item)
{
    constexpr std::int64_t millisecond = 1'000'000;
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(item.state.modified / millisecond),
                              QLocale::ShortFormat);
}

} // namespace MenuExtension::Duplicates
