#include "extensions/DesktopEntryText.h"

#include <QStringList>

#include <algorithm>

namespace ExtensionsTool::DesktopEntryText {

namespace {

/// Whether a character of a command means itself also outside quotes.
bool isPlain(QChar character)
{
    return character.isLetterOrNumber() || QStringView(u"/-._+,:@%").contains(character);
}

} // namespace

QString escaped(const QString& text)
{
    QString value;
    for (const QChar character : text) {
        switch (character.unicode()) {
        case u'\\':
            value += QStringLiteral("\\\\");
            break;
        case u'\n':
            value += QStringLiteral("\\n");
            break;
        case u'\r':
            value += QStringLiteral("\\r");
            break;
        case u'\t':
            value += QStringLiteral("\\t");
            break;
        default:
            value += character;
        }
    }
    // Else it would be taken for room around the equals sign.
    if (value.startsWith(u' '))
        value.replace(0, 1, QStringLiteral("\\s"));
    return value;
}

QString commandOf(const QString& program)
{
    QString command;
    for (const QChar character : program) {
        if (QStringView(u"\"`$\\").contains(character))
            command += u'\\';
        command += character;
        // One alone begins a field code.
        if (character == u'%')
            command += character;
    }
    if (!std::all_of(program.begin(), program.end(), isPlain))
        command = u'"' + command + u'"';
    return escaped(command);
}

std::optional<QString> value(const QByteArray& entry, const QString& key)
{
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(entry).split(u'\n')) {
        const QStringView text = QStringView(line).trimmed();
        if (text.startsWith(u'[')) {
            isInGroup = text == u"[Desktop Entry]";
            continue;
        }
        const auto equals = text.indexOf(u'=');
        if (isInGroup && equals > 0 && text.first(equals).trimmed() == key)
            return text.sliced(equals + 1).trimmed().toString();
    }
    return std::nullopt;
}

} // namespace ExtensionsTool::DesktopEntryText
