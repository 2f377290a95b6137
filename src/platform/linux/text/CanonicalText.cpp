#include "platform/linux/text/CanonicalText.h"

#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace LinuxDesktop {

namespace {

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

/// Nothing for what is not UTF-8.
std::optional<QString> decomposed(std::string_view text)
{
    using Flag = QStringDecoder::Flag;
    // A byte order mark is a character of the text like any other.
    QStringDecoder decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString decoded = decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    if (decode.hasError())
        return std::nullopt;
    return decoded.normalized(QString::NormalizationForm_D);
}

} // namespace

bool canonicallyEqual(std::string_view one, std::string_view other)
{
    if (one == other)
        return true;
    // Where one is not ASCII they still can be equal: the Kelvin sign decomposes to a K.
    if (isAscii(one) && isAscii(other))
        return false;
    const auto decomposedOne = decomposed(one);
    return decomposedOne && decomposedOne == decomposed(other);
}

} // namespace LinuxDesktop
