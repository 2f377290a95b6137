#include "platform/linux/text/FileNameText.h"

#include <algorithm>

namespace LinuxDesktop {

namespace {

char16_t visible(char16_t c)
{
    // Arrows, since few fonts have the pictures of control characters.
    if (c == u'\n')
        return u'\u21b5';
    if (c == u'\t')
        return u'\u21e5';
    const bool control = c < 0x20 || (c >= 0x7f && c < 0xa0);
    const bool lineEnd = c == 0x2028 || c == 0x2029;
    const bool reorders = (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
    return control || lineEnd || reorders ? char16_t{QChar::ReplacementCharacter} : c;
}

} // namespace

QString fileNameText(std::string_view bytes)
{
    QString text = QString::fromUtf8(bytes);
    std::ranges::transform(text, text.begin(), [](QChar c) { return QChar(visible(c.unicode())); });
    return text;
}

} // namespace LinuxDesktop
