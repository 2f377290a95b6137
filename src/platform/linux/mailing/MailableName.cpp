#include "platform/linux/mailing/MailableName.h"

#include <QString>
#include <QUtf8StringView>

#include <climits>

namespace LinuxDesktop {

namespace {

constexpr std::string_view unsafeCharacters = "\n\\,";

} // namespace

bool isUtf8(std::string_view bytes)
{
    return QUtf8StringView(bytes).isValidUtf8();
}

bool isMailablePath(std::string_view path)
{
    return path.find_first_of(unsafeCharacters) == std::string_view::npos && isUtf8(path);
}

std::string mailableName(std::string_view name, std::string_view suffix)
{
    QString text = QString::fromUtf8(name);
    text.replace(QChar(QChar::ReplacementCharacter), u'_');
    std::string result = text.toStdString();
    for (char& c : result)
        if (unsafeCharacters.find(c) != std::string_view::npos)
            c = '_';

    if (const std::size_t longest = NAME_MAX - suffix.size(); result.size() > longest) {
        std::size_t end = longest;
        while (end > 0 && (static_cast<unsigned char>(result[end]) & 0xC0U) == 0x80U)
            --end;
        result.resize(end);
    }
    return result.append(suffix);
}

} // namespace LinuxDesktop
