#pragma once

#include "extensions/AutostartEntry.h"
#include "extensions/Extension.h"
#include "settings/Deployment.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// Folders of a test's own, and the extension that it switches.
struct AutostartTestFolders {
    [[nodiscard]] ExtensionsTool::AutostartFolders folders() const;
    [[nodiscard]] QString own(const QString& name = {}) const { return root.filePath("own/autostart" + name); }
    [[nodiscard]] QString systemWide(const QString& name = {}) const { return root.filePath("all/autostart" + name); }

    QTemporaryDir root;
    ExtensionsTool::Extension extension{
        .identifier =
            QString::fromUtf8(Deployment::extensionIdentifier.data(), Deployment::extensionIdentifier.size()),
        .program = QStringLiteral(ORVIK_EXTENSION_PROGRAM),
        .title = QStringLiteral("A title"),
        .explanation = QStringLiteral("An explanation."),
        .icon = QStringLiteral("an-icon"),
    };
    const QString file = u'/' + extension.identifier + QStringLiteral(".desktop");
};

/// Makes the folders above it too.
void writeFile(const QString& path, const QByteArray& contents);
[[nodiscard]] QByteArray readFile(const QString& path);
