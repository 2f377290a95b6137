#include "platform/linux/text/SizeText.h"

#include <QCoreApplication>
#include <QLocale>

namespace LinuxDesktop {

QString sizeText(std::uint64_t bytes)
{
    // The locale knows no singular of it.
    return bytes == 1 ? QCoreApplication::translate("SizeText", "1 byte")
                      : QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

} // namespace LinuxDesktop
