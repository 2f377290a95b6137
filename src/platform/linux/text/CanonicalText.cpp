#include "platform/linux/text/CanonicalText.h"

#include <QString>
#include <QUtf8StringView>

#include <algorithm>

namespace LinuxDesktop {

namespace {

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

bool isUtf8(std::string_view text)
{
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

QString decomposed(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .normalized(QString::NormalizationForm_D);
}

} // namespace

bool canonicallyEqual(std::string_view one, std::string_view other)
{
    if (one == other)
        return true;
    // Where one is not ASCII they still can be equal: the Kelvin sign decomposes to a K.
    if ((isAscii(one) && isAscii(other)) || !isUtf8(one) || !isUtf8(other))
        return false;
    return decomposed(one) == decomposed(other);
}

} // namespace LinuxDesktop
