#pragma once

#include <QString>

namespace ExtensionsTool {

/// A program that runs in the background of the session and that people may switch on and off.
struct Extension {
    /// Its name on the session bus, and its desktop entry's.
    QString identifier;
    /// Absolute.
    QString program;
    QString title;
    /// One sentence.
    QString explanation;
    /// An icon of the icon theme.
    QString icon;
};

} // namespace ExtensionsTool
