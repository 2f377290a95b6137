#include "platform/linux/chooser/PercentText.h"

#include "platform/linux/chooser/FilePath.h"

#include <QByteArray>

#include <charconv>
#include <climits>

namespace LinuxDesktop {

std::string percentEncoded(std::string_view path)
{
    const QByteArray bytes(path.data(), static_cast<qsizetype>(path.size()));
    return bytes.toPercentEncoding("/").toStdString();
}

std::optional<std::string> pathFromPercentEncoded(std::string_view text)
{
    std::string path;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            path += text[at];
            continue;
        }
        unsigned byte = 0;
        const std::string_view digits = text.substr(at + 1, 2);
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), byte, 16);
        if (digits.size() != 2 || error != std::errc() || end != digits.end())
            return std::nullopt;
        path += static_cast<char>(byte);
        at += 2;
    }
    if (!path.starts_with('/') || path.size() >= PATH_MAX || path.find('\0') != std::string::npos)
        return std::nullopt;
    return normalizedPath(path);
}

} // namespace LinuxDesktop
